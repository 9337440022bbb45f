// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/string_object.h"

#include <gtest/gtest.h>

namespace tessarin {
namespace {

TEST(StringObject, HoldsItsBytesAsTheyAre)
{
    EXPECT_EQ(makeString(std::string("M\xC3\xBCnze"))->text(), "M\xC3\xBCnze");
    EXPECT_EQ(makeString(std::string("no UTF-8: \xFF"))->text(), "no UTF-8: \xFF");
    EXPECT_EQ(makeString(std::string("a\0b", 3))->text(), std::string("a\0b", 3));
    EXPECT_EQ(makeString(std::string())->text(), "");
}

TEST(StringObject, OfCharactersHoldsTheirUTF8)
{
    EXPECT_EQ(makeString(QStringLiteral("M\u00FCnze \u20AC"))->text(), "M\xC3\xBCnze \xE2\x82\xAC");
    const StringRef empty = makeString(QStringLiteral(""));
    ASSERT_NE(empty, nullptr) << "an empty text is a text";
    EXPECT_EQ(empty->text(), "");
}

TEST(StringObject, IsNullForAnAbsentText)
{
    EXPECT_EQ(makeString(QString()), nullptr);
    EXPECT_TRUE(toQString(nullptr).isNull());
}

TEST(StringObject, GivesItsCharactersBack)
{
    EXPECT_EQ(toQString(makeString(std::string("M\xC3\xBCnze"))), QStringLiteral("M\u00FCnze"));
    const QString empty = toQString(makeString(std::string()));
    EXPECT_TRUE(empty.isEmpty());
    EXPECT_FALSE(empty.isNull()) << "an empty text is not an absent one";
}

TEST(StringObject, CountsItsReleasesAndStaysUsable)
{
    const StringRef first = makeString(std::string("text"));
    const StringRef second = first;
    EXPECT_EQ(first->releaseCount(), 0);
    first->release();
    second->release();
    first->release();
    EXPECT_EQ(first->releaseCount(), 3) << "two handles, one object";
    EXPECT_EQ(second->text(), "text");
    EXPECT_EQ(makeString(std::string("text"))->releaseCount(), 0) << "another object of the same text";
}

TEST(StringObject, GoesWithItsLastHandle)
{
    StringRef handle = makeString(std::string("text"));
    const std::weak_ptr<StringObject> watch = handle;
    handle->release();
    EXPECT_FALSE(watch.expired()) << "a release frees nothing";
    handle.reset();
    EXPECT_TRUE(watch.expired());
}

} // namespace
} // namespace tessarin
