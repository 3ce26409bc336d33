// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "printing/spool/CupsSpooler.h"

#include "printing/spool/CupsConnection.h"
#include "printing/spool/CupsLibrary.h"

#include <QString>

#include <string_view>
#include <utility>

namespace {
std::string utf8(const std::u16string &text)
{
    return QString::fromStdU16String(text).toStdString();
}

std::u16string utf16(const char *text)
{
    return QString::fromUtf8(text).toStdU16String();
}

/// The queues of an answer, in its order; an attribute group is one queue.
std::vector<RawSpooler::PrinterInfo> destinations(const CupsLibrary &cups, ipp_t *response)
{
    std::vector<RawSpooler::PrinterInfo> found;
    RawSpooler::PrinterInfo queue;
    for (ipp_attribute_t *each = cups.ippFirstAttribute(response); each;
         each = cups.ippNextAttribute(response)) {
        const char *const known = cups.ippGetName(each);
        const std::string_view name = known ? known : "";
        if (name == "printer-name") {
            queue.printerName = utf16(cups.ippGetString(each, 0, nullptr));
        } else if (name == "device-uri") {
            queue.portName = utf16(cups.ippGetString(each, 0, nullptr));
        } else if (name.empty() && !queue.printerName.empty()) {
            found.push_back(std::exchange(queue, {}));
        }
    }
    if (!queue.printerName.empty()) {
        found.push_back(queue);
    }
    return found;
}
} // namespace

/// What an open handle stands for: a queue that exists, and at most one job on it.
class CupsSpooler::Document final
{
public:
    Document(const CupsLibrary *cups, std::string queue)
        : m_queue(std::move(queue))
        , m_connection(cups)
    {}

    /// A question to the server, because a queue is otherwise not looked at before the job.
    bool queueExists()
    {
        if (!m_connection.alive()) {
            return false;
        }
        const CupsLibrary &cups = m_connection.cups();
        ipp_t *request = newRequest(IPP_OP_GET_PRINTER_ATTRIBUTES);
        cups.ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                          nullptr, "printer-name");
        cups.ippDelete(cups.cupsDoRequest(m_connection.http(), request, "/"));
        return m_connection.answered(CupsConnection::isSuccess(cups.cupsLastError()));
    }

    std::uint32_t start(const char *title)
    {
        if (!m_connection.alive()) {
            return 0;
        }
        m_job = createJob(title);
        if (!m_connection.answered(m_job > 0)) {
            return 0;
        }
        m_started = m_connection.cups().cupsStartDocument(m_connection.http(), m_queue.c_str(),
                                                          m_job, title, CUPS_FORMAT_RAW,
                                                          1) == HTTP_STATUS_CONTINUE;
        return m_connection.answered(m_started) ? static_cast<std::uint32_t>(m_job) : 0;
    }

    /// Leaves no job behind that would wait for its document for ever.
    void cancel()
    {
        if (m_job > 0 && m_connection.alive()) {
            m_connection.answered(CupsConnection::isSuccess(m_connection.cups().cupsCancelJob2(
                m_connection.http(), m_queue.c_str(), m_job, 0)));
        }
    }

    [[nodiscard]] const CupsConnection &connection() const { return m_connection; }
    [[nodiscard]] bool started() const { return m_started && m_connection.alive(); }

    /// CUPS says only at the finish whether it has taken a document, so the one write of a job
    /// finishes it: its answer is then the server's and not that of a buffer on our side.
    bool write(const char *bytes, std::uint32_t count)
    {
        if (!started()) {
            return false;
        }
        // Nothing is written for no bytes: an empty chunk would end the request.
        const bool sent =
            count == 0 || m_connection.cups().cupsWriteRequestData(m_connection.http(), bytes,
                                                                   count) == HTTP_STATUS_CONTINUE;
        return m_connection.answered(sent) && finish();
    }

    /// True too when the write has finished the document already.
    bool finish()
    {
        if (!started()) {
            return !m_started;
        }
        m_started = false;
        const CupsLibrary &cups = m_connection.cups();
        http_t *http = m_connection.http();
        const ipp_status_t status = cups.cupsFinishDocument(http, m_queue.c_str());
        // The status alone is still that of the last exchange when no answer came to this one.
        return m_connection.answered(CupsConnection::isSuccess(status) &&
                                     cups.httpGetStatus(http) == HTTP_STATUS_OK);
    }

private:
    [[nodiscard]] ipp_t *newRequest(ipp_op_t operation) const
    {
        const CupsLibrary &cups = m_connection.cups();
        char uri[HTTP_MAX_URI];
        cups.httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof(uri), "ipp", nullptr, "localhost", 0,
                              "/printers/%s", m_queue.c_str());
        ipp_t *request = cups.ippNewRequest(operation);
        cups.ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri);
        cups.ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                          cups.cupsUser());
        return request;
    }

    /// The request of cupsCreateJob without its search for the queue, which would wait for minutes
    /// on a connection of its own when the server has just fallen silent. 0 on failure.
    [[nodiscard]] int createJob(const char *title) const
    {
        const CupsLibrary &cups = m_connection.cups();
        ipp_t *request = newRequest(IPP_OP_CREATE_JOB);
        cups.ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr, title);
        const std::string resource = "/printers/" + m_queue;
        ipp_t *response = cups.cupsDoRequest(m_connection.http(), request, resource.c_str());
        ipp_attribute_t *id = cups.ippFindAttribute(response, "job-id", IPP_TAG_INTEGER);
        const int job =
            CupsConnection::isSuccess(cups.cupsLastError()) && id ? cups.ippGetInteger(id, 0) : 0;
        cups.ippDelete(response);
        return job;
    }

    std::string m_queue;
    CupsConnection m_connection;
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
    if (!noted(opened->queueExists(), opened->connection())) {
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
    const std::uint32_t job = open->start(utf8(documentName).c_str());
    if (!noted(job != 0, open->connection())) {
        open->cancel();
    }
    return job;
}

bool CupsSpooler::startPagePrinter(Handle handle)
{
    // Raw jobs have no pages.
    Document *const open = document(handle);
    return open && noted(open->started(), open->connection());
}

bool CupsSpooler::writePrinter(Handle handle, const char *bytes, std::uint32_t count,
                               std::uint32_t &written)
{
    Document *const open = document(handle);
    const bool taken = open && noted(open->write(bytes, count), open->connection());
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
    return open && noted(open->finish(), open->connection());
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
const CupsLibrary *CupsSpooler::cups()
{
    if (!m_cups) {
        m_cups = CupsLibrary::load(m_library);
    }
    return m_cups.get();
}

/// One request for all queues: the ready-made call of CUPS makes several, each with a wait of its
/// own, and goes looking on the network for printers that have no queue to print to.
bool CupsSpooler::listDestinations()
{
    m_destinations.clear();
    CupsConnection connection(cups());
    if (!noted(connection.alive(), connection)) {
        return false;
    }
    static const char *const attributes[] = {"printer-name", "device-uri"};
    ipp_t *request = m_cups->ippNewRequest(IPP_OP_CUPS_GET_PRINTERS);
    m_cups->ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", 2,
                          nullptr, attributes);
    ipp_t *response = m_cups->cupsDoRequest(connection.http(), request, "/");
    // Without any queue the server says "not found".
    const ipp_status_t status = m_cups->cupsLastError();
    const bool answered = CupsConnection::isSuccess(status) || status == IPP_STATUS_ERROR_NOT_FOUND;
    m_destinations = destinations(*m_cups, response);
    m_cups->ippDelete(response);
    return noted(connection.answered(answered), connection);
}

/// Keeps the code of a failure at once, before another exchange overwrites it.
bool CupsSpooler::noted(bool succeeded, const CupsConnection &connection)
{
    if (!succeeded) {
        m_lastError = connection.refusal();
    }
    return succeeded;
}
