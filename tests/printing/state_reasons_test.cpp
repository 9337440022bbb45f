// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/state_reasons.h"

#include "printing/destinations.h"

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

TEST(StateReasons, AreWordsForPeople)
{
    EXPECT_EQ(stateReasonsText({}), QString());
    EXPECT_EQ(stateReasonsText({u"none"_s}), QString());
    EXPECT_EQ(stateReasonsText({u"media-empty-error"_s}), u"out of paper"_s);
    EXPECT_EQ(stateReasonsText({u"paused"_s, u"marker-supply-low-warning"_s}), u"paused, ink is low"_s);
}

TEST(StateReasons, AreToldOnce)
{
    EXPECT_EQ(stateReasonsText({u"media-jam-warning"_s, u"media-jam-error"_s}), u"paper jam"_s);
}

TEST(StateReasons, KeepANameThatEndsLikeADegree)
{
    EXPECT_EQ(stateReasonsText({u"document-format-error"_s}), u"the document is damaged"_s);
}

TEST(StateReasons, ShowAnUnknownKeyword)
{
    EXPECT_EQ(stateReasonsText({u"com.example-lid-loose-report"_s}), u"com.example lid loose"_s);
    EXPECT_EQ(stateReasonsText({u" offline "_s}), u"offline"_s);
}

TEST(DestinationDetail, TellsPlaceStateAndReasons)
{
    Destination destination{.name = {.queue = u"office"_s}, .info = u"office"_s};
    EXPECT_EQ(destinationDetail(destination), u"idle"_s);
    destination.location = u"Studio 2"_s;
    destination.state = QueueState::Stopped;
    destination.reasons = {u"media-empty-error"_s, u"cover-open"_s};
    destination.accepting = false;
    EXPECT_EQ(destinationDetail(destination),
              u"Studio 2  ·  stopped (out of paper, a cover is open)  ·  takes no jobs"_s);
}

} // namespace
} // namespace tessarin::host
