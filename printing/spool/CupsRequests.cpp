// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "printing/spool/CupsRequests.h"

#include "printing/spool/CupsConnection.h"

#include <QString>

#include <memory>
#include <string_view>
#include <utility>

namespace {
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

ipp_t *requestTo(const CupsConnection &connection, ipp_op_t operation, const std::string &queue)
{
    const CupsLibrary &cups = connection.cups();
    char uri[HTTP_MAX_URI];
    cups.httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof(uri), "ipp", nullptr, "localhost", 0,
                          "/printers/%s", queue.c_str());
    ipp_t *request = cups.ippNewRequest(operation);
    cups.ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri);
    cups.ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                      connection.user());
    return request;
}

using Response = std::unique_ptr<ipp_t, decltype(CupsLibrary::ippDelete)>;

/// Takes the request; null where no answer came. The ready-made call of CUPS asks again for ever
/// where a server says neither yes nor no, such as "moved": here only what can help is asked again,
/// a proof of who is asking and a way that nobody listens to.
Response responseTo(CupsConnection &connection, ipp_t *request, const std::string &resource)
{
    const CupsLibrary &cups = connection.cups();
    const Response owned(request, cups.ippDelete);
    Response response(nullptr, cups.ippDelete);
    http_status_t status = HTTP_STATUS_UNAUTHORIZED;
    while (!response && connection.alive() &&
           (status == HTTP_STATUS_UNAUTHORIZED || status == HTTP_STATUS_UPGRADE_REQUIRED)) {
        status = cups.cupsSendRequest(connection.http(), request, resource.c_str(),
                                      cups.ippLength(request));
        if (status == HTTP_STATUS_CONTINUE || status == HTTP_STATUS_OK) {
            response.reset(cups.cupsGetResponse(connection.http(), resource.c_str()));
            status = cups.httpGetStatus(connection.http());
        }
    }
    return response;
}

/// Without an answer the last status may still be that of an earlier exchange.
bool succeeded(const CupsConnection &connection, const Response &response)
{
    return response && CupsConnection::isSuccess(connection.cups().cupsLastError());
}
} // namespace

/// One request for all queues: the ready-made call of CUPS makes several, each with a wait of its
/// own, and goes looking on the network for printers that have no queue to print to.
std::optional<std::vector<RawSpooler::PrinterInfo>> CupsRequests::queues(CupsConnection &connection)
{
    static const char *const attributes[] = {"printer-name", "device-uri"};
    const CupsLibrary &cups = connection.cups();
    ipp_t *request = cups.ippNewRequest(IPP_OP_CUPS_GET_PRINTERS);
    cups.ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", 2,
                       nullptr, attributes);
    const Response response = responseTo(connection, request, "/");
    // Without any queue the server says "not found".
    const bool answered =
        succeeded(connection, response) || cups.cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND;
    return connection.answered(answered) ? std::optional(destinations(cups, response.get()))
                                         : std::nullopt;
}

bool CupsRequests::queueExists(CupsConnection &connection, const std::string &queue)
{
    const CupsLibrary &cups = connection.cups();
    ipp_t *request = requestTo(connection, IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    cups.ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                      "printer-name");
    return connection.answered(succeeded(connection, responseTo(connection, request, "/")));
}

/// The request of cupsCreateJob without its search for the queue, which would wait for minutes on a
/// connection of its own when the server has just fallen silent.
int CupsRequests::createJob(CupsConnection &connection, const std::string &queue,
                            const std::string &title)
{
    const CupsLibrary &cups = connection.cups();
    ipp_t *request = requestTo(connection, IPP_OP_CREATE_JOB, queue);
    cups.ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr, title.c_str());
    const Response response = responseTo(connection, request, "/printers/" + queue);
    ipp_attribute_t *id = cups.ippFindAttribute(response.get(), "job-id", IPP_TAG_INTEGER);
    const int job = succeeded(connection, response) && id ? cups.ippGetInteger(id, 0) : 0;
    return connection.answered(job > 0) ? job : 0;
}

bool CupsRequests::startDocument(CupsConnection &connection, const std::string &queue, int job,
                                 const std::string &title)
{
    return connection.answered(
        connection.cups().cupsStartDocument(connection.http(), queue.c_str(), job, title.c_str(),
                                            CUPS_FORMAT_RAW, 1) == HTTP_STATUS_CONTINUE);
}

bool CupsRequests::sendDocument(CupsConnection &connection, const std::string &bytes)
{
    // Nothing is written for no bytes: an empty chunk would end the request.
    return connection.answered(bytes.empty() || connection.cups().cupsWriteRequestData(
                                                    connection.http(), bytes.data(),
                                                    bytes.size()) == HTTP_STATUS_CONTINUE);
}

bool CupsRequests::finishDocument(CupsConnection &connection, const std::string &queue)
{
    const CupsLibrary &cups = connection.cups();
    const ipp_status_t status = cups.cupsFinishDocument(connection.http(), queue.c_str());
    // The status alone is still that of the last exchange when no answer came to this one.
    return connection.answered(CupsConnection::isSuccess(status) &&
                               cups.httpGetStatus(connection.http()) == HTTP_STATUS_OK);
}

bool CupsRequests::cancelJob(CupsConnection &connection, const std::string &queue, int job)
{
    ipp_t *request = requestTo(connection, IPP_OP_CANCEL_JOB, queue);
    connection.cups().ippAddInteger(request, IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", job);
    return connection.answered(succeeded(connection, responseTo(connection, request, "/jobs/")));
}
