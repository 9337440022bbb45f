// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/job_follower.h"

#include "printing/cups_connection.h"
#include "printing/text.h"

#include <QtConcurrentRun>

#include <array>
#include <initializer_list>
#include <vector>

namespace tessarin::host {

namespace {

constexpr int kAskAgainMilliseconds = 1000;
constexpr std::size_t kUriBytes = 1024; // as libcups' own URI buffers (HTTP_MAX_URI)

struct ResponseFreer {
    void operator()(ipp_t *response) const { ippDelete(response); }
};
using Response = std::unique_ptr<ipp_t, ResponseFreer>;

/// A text attribute of a response; empty when it is not there.
QString textOf(ipp_t *response, const char *name)
{
    ipp_attribute_t *attribute = ippFindAttribute(response, name, IPP_TAG_ZERO);
    const char *text = attribute ? ippGetString(attribute, 0, nullptr) : nullptr;
    return text ? QString::fromUtf8(text) : QString();
}

JobState stateOf(int state)
{
    switch (state) {
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
        return JobState::Pending;
    }
}

Response askServer(http_t *http, ipp_op_t operation, const char *uri, const char *uriName,
                   std::initializer_list<const char *> wanted)
{
    ipp_t *request = ippNewRequest(operation);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, uriName, nullptr, uri);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    const std::vector<const char *> names(wanted);
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(names.size()), nullptr, names.data());
    return Response(cupsDoRequest(http, request, "/")); // frees the request
}

/// Why a queue that is stopped does not print; empty when it is not stopped or does not say.
QString whyStopped(http_t *http, const QString &queue)
{
    std::array<char, kUriBytes> uri = {};
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), static_cast<int>(uri.size()), "ipp", nullptr, "localhost", 0,
                     "/printers/%s", queue.toUtf8().constData());
    const Response response = askServer(http, IPP_OP_GET_PRINTER_ATTRIBUTES, uri.data(), "printer-uri",
                                        {"printer-state", "printer-state-message"});
    ipp_attribute_t *state = response ? ippFindAttribute(response.get(), "printer-state", IPP_TAG_ENUM) : nullptr;
    if (!state || ippGetInteger(state, 0) != IPP_PSTATE_STOPPED) {
        return {};
    }
    const QString message = textOf(response.get(), "printer-state-message");
    return message.isEmpty() ? TessarinPrint::tr("the printer is stopped")
                             : TessarinPrint::tr("the printer is stopped: %1").arg(message);
}

} // namespace

bool isFinal(JobState state)
{
    return state == JobState::Done || state == JobState::Cancelled || state == JobState::Aborted;
}

Outcome<JobReport> askForJob(const QueueName &queue, int jobId)
{
    using Result = Outcome<JobReport>;
    const Outcome<CupsConnection> connection = connectToPrintServer();
    if (!connection.ok()) {
        return Result::failed(connection.reason());
    }
    http_t *http = connection.value().get();
    std::array<char, kUriBytes> uri = {};
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), static_cast<int>(uri.size()), "ipp", nullptr, "localhost", 0,
                     "/jobs/%d", jobId);
    const Response response = askServer(http, IPP_OP_GET_JOB_ATTRIBUTES, uri.data(), "job-uri",
                                        {"job-state", "job-state-reasons", "job-printer-state-message"});
    ipp_attribute_t *state = response ? ippFindAttribute(response.get(), "job-state", IPP_TAG_ENUM) : nullptr;
    if (!state) {
        return Result::failed(TessarinPrint::tr("job %1: %2").arg(QString::number(jobId), lastCupsError()));
    }
    JobReport report{.state = stateOf(ippGetInteger(state, 0)),
                     .message = textOf(response.get(), "job-printer-state-message")};
    if (report.state == JobState::Pending || report.state == JobState::Stopped) {
        if (const QString why = whyStopped(http, queue.queue); !why.isEmpty()) {
            report.message = why;
        }
    }
    return report;
}

QString cancelJobOnServer(const QueueName &queue, int jobId)
{
    const Outcome<CupsConnection> connection = connectToPrintServer();
    if (!connection.ok()) {
        return connection.reason();
    }
    const ipp_status_t status =
        cupsCancelJob2(connection.value().get(), queue.queue.toUtf8().constData(), jobId, 0);
    return status > IPP_STATUS_OK_EVENTS_COMPLETE ? lastCupsError() : QString();
}

JobFollower::JobFollower()
{
    timer_.setSingleShot(true);
    timer_.setInterval(kAskAgainMilliseconds);
    connect(&timer_, &QTimer::timeout, this, &JobFollower::ask);
}

void JobFollower::start(const QueueName &queue, int jobId)
{
    queue_ = queue;
    jobId_ = jobId;
    ask();
}

void JobFollower::ask()
{
    QtConcurrent::run([queue = queue_, id = jobId_] {
        return askForJob(queue, id);
    }).then(this, [this](const Outcome<JobReport> &report) {
        tell(report.ok() ? report.value() : JobReport{.state = last_.state, .message = report.reason()});
        if (!isFinal(last_.state)) {
            timer_.start();
        }
    });
}

void JobFollower::tell(const JobReport &report)
{
    if (told_ && (isFinal(last_.state) || (report.state == last_.state && report.message == last_.message))) {
        return;
    }
    told_ = true;
    last_ = report;
    emit stateChanged(report.state, report.message);
}

void JobFollower::cancelJob()
{
    QtConcurrent::run([queue = queue_, id = jobId_] {
        return cancelJobOnServer(queue, id);
    }).then(this, [this](const QString &failure) {
        if (!failure.isEmpty()) {
            tell({.state = last_.state, .message = failure});
        }
    });
}

} // namespace tessarin::host
