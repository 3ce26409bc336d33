// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "fuzz/FuzzStore.h"
#include "fuzz/FuzzTarget.h"
#include "printing/spool/CupsSpooler.h"

#include <QScopeGuard>

#include <mutex>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

namespace {
/// A print server that answers everything with the same bytes and hangs up.
class Server final
{
public:
    Server()
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::snprintf(address.sun_path, sizeof(address.sun_path), "/tmp/zelvan-fuzz-%d.sock",
                      getpid());
        unlink(address.sun_path);
        m_socket = socket(AF_UNIX, SOCK_STREAM, 0);
        if (bind(m_socket, reinterpret_cast<sockaddr *>(&address), sizeof(address)) != 0 ||
            listen(m_socket, 16) != 0) {
            std::abort();
        }
        setenv("CUPS_SERVER", address.sun_path, 1);
        std::thread([this] { serve(); }).detach();
    }

    void answer(QByteArray bytes)
    {
        const std::scoped_lock lock(m_mutex);
        m_answer = std::move(bytes);
    }

private:
    void serve()
    {
        for (;;) {
            const int client = accept(m_socket, nullptr, nullptr);
            QByteArray bytes;
            {
                const std::scoped_lock lock(m_mutex);
                bytes = m_answer;
            }
            const char *at = bytes.constData();
            for (qsizetype left = bytes.size(); left > 0;) {
                const ssize_t sent = send(client, at, size_t(left), MSG_NOSIGNAL);
                if (sent <= 0) {
                    break;
                }
                at += sent;
                left -= sent;
            }
            shutdown(client, SHUT_WR);
            char ignored[4096];
            while (read(client, ignored, sizeof(ignored)) > 0) {
            }
            close(client);
        }
    }

    int m_socket;
    std::mutex m_mutex;
    QByteArray m_answer;
};

/// Mostly the body of a good answer, so that the inputs reach what reads its attributes.
QByteArray framed(const QByteArray &input)
{
    if (input.startsWith('!')) {
        return input.mid(1);
    }
    return "HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\nContent-Length: " +
           QByteArray::number(input.size()) + "\r\n\r\n" + input;
}
} // namespace

/// The answers of a print server: to the question for its queues, and on the way of one document.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static auto *const server = new Server;
    server->answer(framed(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size))));

    // However it ends, the server falls silent: a call that was left behind ends too.
    const auto silence = qScopeGuard([] { server->answer({}); });
    CupsSpooler spooler;
    std::uint32_t count = 0;
    std::vector<RawSpooler::PrinterInfo> printers;
    spooler.enumPrinters(0, count, printers);
    spooler.enumPrinters(count, count, printers);
    RawSpooler::Handle handle = 0;
    if (spooler.openPrinter(u"TM88", handle)) {
        std::uint32_t written = 0;
        if (spooler.startDocPrinter(handle, u"receipt") != 0) {
            spooler.startPagePrinter(handle);
            spooler.writePrinter(handle, "paper", 5, written);
            spooler.endPagePrinter(handle);
            spooler.endDocPrinter(handle);
        }
        spooler.closePrinter(handle);
    }
    return 0;
}
