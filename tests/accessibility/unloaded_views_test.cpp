// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A host that unloads the panel's library once its views are gone: nothing of it is asked any more.

#include <QAccessible>
#include <QFile>
#include <QLibrary>
#include <QPushButton>
#include <QSlider>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

bool isMapped(const QByteArray &library)
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(library);
}

TEST(UnloadedViews, AreNotAskedAnyMore)
{
    const QString path = QStringLiteral(TESSARIN_UNLOADABLE_VIEWS);
    QLibrary library(path);
    const auto readSlider = reinterpret_cast<int (*)()>(library.resolve("readSlider"));
    ASSERT_NE(readSlider, nullptr) << library.errorString().toStdString();
    EXPECT_EQ(readSlider(), 95);
    ASSERT_TRUE(library.unload());
    ASSERT_FALSE(isMapped(path.toUtf8())) << "the library is still there";

    QSlider slider;
    slider.setValue(7);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&slider)->valueInterface()->currentValue().toInt(), 7);
    QPushButton button(QStringLiteral("Reload"));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&button)->text(QAccessible::Name), QStringLiteral("Reload"));
}

} // namespace
} // namespace tessarin::test
