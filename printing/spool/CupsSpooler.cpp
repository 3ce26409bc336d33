// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "printing/spool/CupsSpooler.h"

#include "printing/spool/CupsConversation.h"
#include "printing/spool/CupsLibrary.h"
#include "printing/spool/CupsRequests.h"

#include <QString>

#include <utility>

namespace {
std::string utf8(const std::u16string &text)
{
    return QString::fromStdU16String(text).toStdString();
}
} // namespace

/// What an open handle stands for: a queue that exists, and at most one job on it.
class CupsSpooler::Document final
{
public:
    Document(std::shared_ptr<const CupsLibrary> cups, std::string queue)
        : m_queue(std::move(queue))
        , m_conversation(std::move(cups))
    {}

    /// A question to the server, because a queue is otherwise not looked at before the job.
    bool queueExists()
    {
        return m_conversation.ask([queue = m_queue](CupsConnection &connection) {
            return CupsRequests::queueExists(connection, queue);
        });
    }

    std::uint32_t start(const std::string &title)
    {
        m_job = m_conversation.ask([queue = m_queue, title](CupsConnection &connection) {
            return CupsRequests::createJob(connection, queue, title);
        });
        m_started = m_job > 0 && m_conversation.ask([queue = m_queue, job = m_job,
                                                     title](CupsConnection &connection) {
            return CupsRequests::startDocument(connection, queue, job, title);
        });
        return m_started ? static_cast<std::uint32_t>(m_job) : 0;
    }

    /// Leaves no job behind that would wait for its document for ever.
    void cancel()
    {
        if (m_job > 0) {
            m_conversation.ask([queue = m_queue, job = m_job](CupsConnection &connection) {
                return CupsRequests::cancelJob(connection, queue, job);
            });
        }
    }

    [[nodiscard]] const CupsConversation &conversation() const { return m_conversation; }
    [[nodiscard]] bool started() const { return m_started; }

    /// CUPS says only at the finish whether it has taken a document, so the one write of a job
    /// finishes it: its answer is then the server's and not that of a buffer on our side.
    bool write(const char *bytes, std::uint32_t count)
    {
        const bool sent =
            m_started &&
            m_conversation.ask([document = std::string(bytes, count)](CupsConnection &connection) {
                return CupsRequests::sendDocument(connection, document);
            });
        return sent && finish();
    }

    /// True too when the write has finished the document already.
    bool finish()
    {
        if (!std::exchange(m_started, false)) {
            return true;
        }
        return m_conversation.ask([queue = m_queue](CupsConnection &connection) {
            return CupsRequests::finishDocument(connection, queue);
        });
    }

private:
    std::string m_queue;
    CupsConversation m_conversation;
    int m_job = 0;
    bool m_started = false;
};

CupsSpooler::CupsSpooler(QString library)
    : m_library(std::move(library))
{}

CupsSpooler::~CupsSpooler() = default;

bool CupsSpooler::openPrinter(const std::u16string &printerName, Handle &handle)
{
    auto opened = std::make_unique<Document>(cups(), utf8(printerName));
    if (!noted(opened->queueExists(), opened->conversation())) {
        return false;
    }
    handle = ++m_lastHandle;
    m_documents.emplace(handle, std::move(opened));
    return true;
}

std::uint32_t CupsSpooler::startDocPrinter(Handle handle, const std::u16string &documentName)
{
    Document *const open = document(handle);
    if (!open) {
        return 0;
    }
    const std::uint32_t job = open->start(utf8(documentName));
    if (!noted(job != 0, open->conversation())) {
        open->cancel();
    }
    return job;
}

bool CupsSpooler::startPagePrinter(Handle handle)
{
    // Raw jobs have no pages.
    Document *const open = document(handle);
    return open && noted(open->started(), open->conversation());
}

bool CupsSpooler::writePrinter(Handle handle, const char *bytes, std::uint32_t count,
                               std::uint32_t &written)
{
    Document *const open = document(handle);
    const bool taken = open && noted(open->write(bytes, count), open->conversation());
    written = taken ? count : 0;
    return taken;
}

bool CupsSpooler::endPagePrinter(Handle handle)
{
    return document(handle) != nullptr;
}

bool CupsSpooler::endDocPrinter(Handle handle)
{
    Document *const open = document(handle);
    return open && noted(open->finish(), open->conversation());
}

bool CupsSpooler::closePrinter(Handle handle)
{
    return m_documents.erase(handle) > 0;
}

bool CupsSpooler::enumPrinters(std::uint32_t size, std::uint32_t &needed,
                               std::vector<PrinterInfo> &printers)
{
    if (size == 0) {
        m_listed = listDestinations();
        needed = m_listed ? static_cast<std::uint32_t>(m_destinations.size()) : 1;
        return m_listed && m_destinations.empty();
    }
    printers = m_destinations;
    return m_listed;
}

std::uint32_t CupsSpooler::getLastError() const
{
    return m_lastError;
}

CupsSpooler::Document *CupsSpooler::document(Handle handle) const
{
    const auto found = m_documents.find(handle);
    return found == m_documents.end() ? nullptr : found->second.get();
}

/// Tried again as long as it is missing: somebody may install it under the running till.
std::shared_ptr<const CupsLibrary> CupsSpooler::cups()
{
    if (!m_cups) {
        m_cups = CupsLibrary::load(m_library);
    }
    return m_cups;
}

bool CupsSpooler::listDestinations()
{
    CupsConversation conversation(cups());
    auto found = conversation.ask(CupsRequests::queues);
    m_destinations = found.value_or(std::vector<PrinterInfo>{});
    return noted(found.has_value(), conversation);
}

/// Keeps the code of a failure at once, before another exchange overwrites it.
bool CupsSpooler::noted(bool succeeded, const CupsConversation &conversation)
{
    if (!succeeded) {
        m_lastError = conversation.refusal();
    }
    return succeeded;
}
