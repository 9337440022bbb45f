// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/job_report.h"

#include "printing/cups_connection.h"
#include "printing/state_reasons.h"
#include "printing/text.h"

#include <array>
#include <initializer_list>
#include <memory>
#include <vector>

namespace tessarin::host {

namespace {

constexpr std::size_t kUriBytes = 1024; // as libcups' own URI buffers (HTTP_MAX_URI)

using Uri = std::array<char, kUriBytes>;

struct ResponseFreer {
    void operator()(ipp_t *response) const { ippDelete(response); }
};
using Response = std::unique_ptr<ipp_t, ResponseFreer>;

QStringList textsOf(ipp_t *response, const char *name)
{
    QStringList texts;
    ipp_attribute_t *attribute = ippFindAttribute(response, name, IPP_TAG_ZERO);
    for (int i = 0; i < ippGetCount(attribute); ++i) {
        texts << QString::fromUtf8(ippGetString(attribute, i, nullptr));
    }
    return texts;
}

QString textOf(ipp_t *response, const char *name)
{
    return textsOf(response, name).value(0).simplified();
}

/// A number of a response; 0 when it is not there.
int numberOf(ipp_t *response, const char *name)
{
    ipp_attribute_t *attribute = ippFindAttribute(response, name, IPP_TAG_ZERO);
    return attribute ? ippGetInteger(attribute, 0) : 0;
}

Response askServer(http_t *http, ipp_op_t operation, const char *uriName, const Uri &uri,
                   std::initializer_list<const char *> wanted)
{
    ipp_t *request = ippNewRequest(operation);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, uriName, nullptr, uri.data());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    const std::vector<const char *> names(wanted);
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(names.size()), nullptr, names.data());
    return Response(cupsDoRequest(http, request, "/")); // frees the request
}

Response askForPrinter(http_t *http, const QueueName &queue)
{
    Uri uri = {};
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), static_cast<int>(uri.size()), "ipp", nullptr, "localhost", 0,
                     "/printers/%s", queue.queue.toUtf8().constData());
    return askServer(http, IPP_OP_GET_PRINTER_ATTRIBUTES, "printer-uri", uri,
                     {"printer-state", "printer-state-reasons", "printer-state-message"});
}

/// A job that the server does not know.
JobReport unknownJob(http_t *http, const QueueName &queue)
{
    askForPrinter(http, queue);
    if (cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND) {
        return {.state = JobState::Aborted,
                .message = TessarinPrint::tr("the print server no longer has the queue %1").arg(queue.queue)};
    }
    return {.state = JobState::Done, .message = TessarinPrint::tr("the print server keeps no record of it")};
}

JobState stateOf(const JobFacts &facts)
{
    switch (facts.jobState) {
    case IPP_JSTATE_HELD:
        return JobState::Held;
    case IPP_JSTATE_PROCESSING:
        return JobState::Printing;
    case IPP_JSTATE_STOPPED:
        return JobState::Stopped;
    case IPP_JSTATE_CANCELED:
        return JobState::Cancelled;
    case IPP_JSTATE_ABORTED:
        return JobState::Aborted;
    case IPP_JSTATE_COMPLETED:
        return JobState::Done;
    default:
        return facts.printerStopped ? JobState::Stopped : JobState::Pending;
    }
}

/// What is known of why a job does not go on: the job's word first, then the printer's.
QString whyNot(const JobFacts &facts)
{
    QStringList texts;
    QStringList candidates = {facts.printerMessage, facts.printerStateMessage};
    if (facts.printerStopped) {
        candidates << stateReasonsText(facts.printerReasons);
    }
    for (const QString &text : candidates) {
        if (!text.isEmpty() && !texts.contains(text, Qt::CaseInsensitive)) {
            texts << text;
        }
    }
    if (texts.isEmpty()) {
        texts << stateReasonsText(facts.jobReasons);
    }
    if (texts.first().isEmpty() && facts.printerStopped) {
        return TessarinPrint::tr("the printer is stopped");
    }
    return texts.join(QStringLiteral(": "));
}

} // namespace

bool isFinal(JobState state)
{
    return state == JobState::Done || state == JobState::Cancelled || state == JobState::Aborted;
}

JobReport reportOf(const JobFacts &facts)
{
    JobReport report{.state = stateOf(facts)};
    switch (report.state) {
    case JobState::Pending:
    case JobState::Held:
    case JobState::Cancelled:
        report.message = stateReasonsText(facts.jobReasons);
        break;
    case JobState::Printing:
        report.message = facts.printerMessage;
        break;
    case JobState::Stopped:
    case JobState::Aborted:
        report.message = whyNot(facts);
        break;
    case JobState::Done:
        for (const char *flaw : {"job-completed-with-errors", "job-completed-with-warnings"}) {
            if (facts.jobReasons.contains(QLatin1String(flaw))) {
                report.message = stateReasonsText({QLatin1String(flaw)});
            }
        }
        break;
    }
    if (facts.sheets > 0 && (report.state == JobState::Printing || report.state == JobState::Done)) {
        const QString sheets = TessarinPrint::tr("sheets so far: %1").arg(QString::number(facts.sheets));
        report.message = report.message.isEmpty() ? sheets : report.message + QStringLiteral(", ") + sheets;
    }
    return report;
}

Outcome<JobReport> askForJob(http_t *http, const QueueName &queue, int jobId)
{
    Uri uri = {};
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), static_cast<int>(uri.size()), "ipp", nullptr, "localhost", 0,
                     "/jobs/%d", jobId);
    const Response job =
        askServer(http, IPP_OP_GET_JOB_ATTRIBUTES, "job-uri", uri,
                  {"job-state", "job-state-reasons", "job-printer-state-message", "job-media-sheets-completed"});
    if (cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND) {
        return unknownJob(http, queue);
    }
    JobFacts facts{.jobState = job ? numberOf(job.get(), "job-state") : 0};
    if (facts.jobState == 0) {
        return Outcome<JobReport>::failed(
            TessarinPrint::tr("job %1: the print server %2 does not tell how it is: %3")
                .arg(QString::number(jobId), printServerName(), lastCupsError()));
    }
    facts.jobReasons = textsOf(job.get(), "job-state-reasons");
    facts.printerMessage = textOf(job.get(), "job-printer-state-message");
    facts.sheets = numberOf(job.get(), "job-media-sheets-completed");
    if (facts.jobState == IPP_JSTATE_PENDING || facts.jobState == IPP_JSTATE_STOPPED ||
        facts.jobState == IPP_JSTATE_ABORTED) {
        if (const Response printer = askForPrinter(http, queue)) {
            facts.printerStopped = numberOf(printer.get(), "printer-state") == IPP_PSTATE_STOPPED;
            facts.printerReasons = textsOf(printer.get(), "printer-state-reasons");
            facts.printerStateMessage = textOf(printer.get(), "printer-state-message");
        }
    }
    return reportOf(facts);
}

QString cancelJobOnServer(http_t *http, const QueueName &queue, int jobId)
{
    const ipp_status_t status = cupsCancelJob2(http, queue.queue.toUtf8().constData(), jobId, 0);
    const bool ended = status == IPP_STATUS_ERROR_NOT_POSSIBLE || status == IPP_STATUS_ERROR_NOT_FOUND;
    return ended || status <= IPP_STATUS_OK_EVENTS_COMPLETE ? QString() : lastCupsError();
}

} // namespace tessarin::host
