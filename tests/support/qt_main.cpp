// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The tests' main(): GoogleTest inside a Qt application, on the offscreen platform unless told otherwise.

#include "platform/log_sink.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    tessarin::setLogSink([](std::string_view) {}); // tests never write to the system log
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
