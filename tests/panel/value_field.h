// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A panel whose first slider has the keyboard, for tests of the field for its value.

#ifndef TESSARIN_TESTS_PANEL_VALUE_FIELD_H
#define TESSARIN_TESTS_PANEL_VALUE_FIELD_H

#include "tests/panel/setting_test_support.h"

#include <gtest/gtest.h>

namespace tessarin::test {

class ValueField : public testing::Test {
protected:
    ValueField() : panel(samplePPD())
    {
        panel.window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&panel.window));
        panel.slider(0)->setFocus();
        log.clear();
    }

    /// Types into the field as it is.
    void type(const char *text) { QTest::keyClicks(openField(panel), QString::fromUtf8(text)); }
    void press(Qt::Key key) { QTest::keyClick(openField(panel), key); }

    StableAddresses addresses;
    AlertRecorder alerts;
    CapturedLog log;
    ShownPanel panel;
};

} // namespace tessarin::test

#endif
