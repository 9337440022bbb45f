// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/job_report.h"

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

void expectReport(const JobFacts &facts, JobState state, const QString &message)
{
    const JobReport report = reportOf(facts);
    EXPECT_EQ(report.state, state);
    EXPECT_EQ(report.message.toStdString(), message.toStdString());
}

TEST(JobReport, TellsEveryState)
{
    expectReport({.jobState = 3}, JobState::Pending, QString());
    expectReport({.jobState = 4, .jobReasons = {u"job-hold-until-specified"_s}}, JobState::Held,
                 u"it waits for its time or its release"_s);
    expectReport({.jobState = 5, .printerMessage = u"Page 3"_s}, JobState::Printing, u"Page 3"_s);
    expectReport({.jobState = 7, .jobReasons = {u"job-canceled-by-user"_s}}, JobState::Cancelled,
                 u"cancelled by a person"_s);
    expectReport({.jobState = 8, .printerMessage = u"the cable is cut"_s}, JobState::Aborted,
                 u"the cable is cut"_s);
    expectReport({.jobState = 9, .jobReasons = {u"job-completed-successfully"_s}}, JobState::Done, QString());
}

TEST(JobReport, CallsAJobStoppedThatWaitsForAStoppedPrinter)
{
    expectReport({.jobState = 3,
                  .printerStopped = true,
                  .printerReasons = {u"paused"_s},
                  .printerStateMessage = u"the ink is being changed"_s},
                 JobState::Stopped, u"the ink is being changed: paused"_s);
    expectReport({.jobState = 3, .printerStopped = true}, JobState::Stopped, u"the printer is stopped"_s);
}

TEST(JobReport, GivesTheReasonOfAStoppedJob)
{
    expectReport({.jobState = 6,
                  .jobReasons = {u"job-completed-with-errors"_s},
                  .printerMessage = u"Filter failed"_s,
                  .printerStateMessage = u"the head is dry"_s},
                 JobState::Stopped, u"Filter failed: the head is dry"_s);
    expectReport({.jobState = 6,
                  .printerMessage = u"The head is dry"_s,
                  .printerReasons = {u"media-empty"_s},
                  .printerStateMessage = u"the head is dry"_s},
                 JobState::Stopped, u"The head is dry"_s);
    expectReport({.jobState = 8, .jobReasons = {u"aborted-by-system"_s}}, JobState::Aborted,
                 u"given up by the print server"_s);
}

TEST(JobReport, TellsFlawsAndSheets)
{
    expectReport({.jobState = 9, .jobReasons = {u"job-completed-with-warnings"_s}, .sheets = 2}, JobState::Done,
                 u"printed with warnings, sheets so far: 2"_s);
    expectReport({.jobState = 5, .sheets = 12}, JobState::Printing, u"sheets so far: 12"_s);
    expectReport({.jobState = 7, .sheets = 12}, JobState::Cancelled, QString());
}

} // namespace
} // namespace tessarin::host
