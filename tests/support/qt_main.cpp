// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The tests' main(): GoogleTest inside a Qt application, on the offscreen platform unless told otherwise.

#include "platform/log_sink.h"

#include <QApplication>

#include <gtest/gtest.h>

#if defined(__SANITIZE_ADDRESS__)
// CTest gives the cases that it finds in a program one variable of the environment at most, so that the leaks which
// are not the panel's are named here, too. The sanitizer's library looks for the function by its name.
extern "C" __attribute__((visibility("default"))) const char *__lsan_default_suppressions();
extern "C" __attribute__((visibility("default"))) const char *__lsan_default_suppressions()
{
    return TESSARIN_LSAN_SUPPRESSIONS;
}
#endif

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
