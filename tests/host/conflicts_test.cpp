// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "settings/conflicts.h"

#include "tests/host/pages_test_support.h"

#include <gtest/gtest.h>

#include <vector>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

using test::listed;

class ConflictsTest : public testing::Test {
protected:
    void SetUp() override { open("pages.ppd"); }
    void open(const char *name)
    {
        settings_ = test::settingsOf(test::fixture(name));
        ASSERT_TRUE(settings_);
    }
    const HostPrinter &printer() const { return settings_->printer(); }
    void set(const QString &key, const QString &value)
    {
        ASSERT_TRUE(settings_->set(key, value, ChangeOrigin::Page)) << key.toStdString();
    }
    QString resolved(const QString &key, const QString &choice) const
    {
        const auto changes = resolution(printer(), key, choice);
        return changes ? listed(*changes) : u"(none)"_s;
    }

    std::unique_ptr<JobSettings> settings_;
};

TEST_F(ConflictsTest, FindsNothingWhereAllIsWell)
{
    EXPECT_EQ(listed(presentConflicts(printer())), QString());
    EXPECT_EQ(listed(conflictsOf(printer(), u"MediaType"_s, u"Photo"_s)), QString());
    EXPECT_EQ(conflictReason(printer(), u"MediaType"_s, u"Photo"_s), QString());
    EXPECT_EQ(resolved(u"MediaType"_s, u"Photo"_s), QString());
}

TEST_F(ConflictsTest, NamesWhatStandsInTheWay)
{
    EXPECT_EQ(listed(conflictsOf(printer(), u"MediaType"_s, u"Canvas"_s)), u"Quality=Draft"_s);
    EXPECT_EQ(conflictReason(printer(), u"MediaType"_s, u"Canvas"_s), u"not with Quality: Draft"_s);
    set(u"Duplex"_s, u"DuplexNoTumble"_s);
    EXPECT_EQ(conflictReason(printer(), u"MediaType"_s, u"Canvas"_s),
              u"not with Two-Sided: Long Edge, Quality: Draft"_s);
    set(u"Quality"_s, u"Best"_s);
    set(u"Duplex"_s, u"None"_s);
    set(u"MediaType"_s, u"Canvas"_s);
    EXPECT_EQ(conflictReason(printer(), u"Duplex"_s, u"DuplexTumble"_s),
              u"not with Media Type: <u>Canvas</u> & Büttenpapier"_s);
}

TEST_F(ConflictsTest, IgnoresTheCaseOfKeysAndChoices)
{
    EXPECT_EQ(listed(conflictsOf(printer(), u"mediatype"_s, u"CANVAS"_s)), u"Quality=Draft"_s);
    EXPECT_EQ(resolved(u"mediatype"_s, u"CANVAS"_s), u"Quality=Best"_s);
}

TEST_F(ConflictsTest, LeavesOutWhatHasNothingToDoWithTheChoice)
{
    set(u"Staple"_s, u"True"_s); // in conflict with the hardware from now on
    EXPECT_EQ(listed(presentConflicts(printer())), u"Staple=True OptionStapler=False"_s);
    EXPECT_EQ(listed(conflictsOf(printer(), u"Quality"_s, u"Best"_s)), QString());
    EXPECT_EQ(listed(conflictsOf(printer(), u"MediaType"_s, u"Canvas"_s)), u"Quality=Draft"_s);
    EXPECT_EQ(listed(conflictsOf(printer(), u"Staple"_s, u"True"_s)), u"OptionStapler=False"_s);
    EXPECT_EQ(listed(conflictsOf(printer(), u"Staple"_s, u"False"_s)), QString());
}

TEST_F(ConflictsTest, ResolvesByChangingTheOthers)
{
    set(u"Duplex"_s, u"DuplexTumble"_s);
    EXPECT_EQ(resolved(u"MediaType"_s, u"Canvas"_s), u"Duplex=None Quality=Best"_s);
    const auto changes = resolution(printer(), u"MediaType"_s, u"Canvas"_s);
    ASSERT_TRUE(changes);
    EXPECT_EQ(changes->front().keyText, u"Two-Sided"_s);
    EXPECT_EQ(changes->front().choiceText, u"Off"_s);
    for (const OptionChoice &change : *changes) {
        set(change.key, change.choice);
    }
    set(u"MediaType"_s, u"Canvas"_s);
    EXPECT_EQ(listed(presentConflicts(printer())), QString());
}

TEST_F(ConflictsTest, TellsOfThePaperSizeOnce)
{
    set(u"Duplex"_s, u"DuplexTumble"_s);
    EXPECT_EQ(listed(conflictsOf(printer(), u"PageSize"_s, u"EnvDL"_s)), u"Duplex=DuplexTumble"_s);
    EXPECT_EQ(resolved(u"PageSize"_s, u"EnvDL"_s), u"Duplex=None"_s);
    set(u"Duplex"_s, u"None"_s);
    set(u"PageSize"_s, u"EnvDL"_s);
    EXPECT_EQ(listed(conflictsOf(printer(), u"Duplex"_s, u"DuplexTumble"_s)), u"PageSize=EnvDL"_s);
    EXPECT_EQ(conflictReason(printer(), u"Duplex"_s, u"DuplexTumble"_s), u"not with Media Size: Envelope DL"_s);
    EXPECT_EQ(resolved(u"Duplex"_s, u"DuplexTumble"_s), u"PageSize=A4"_s);
    set(u"Duplex"_s, u"DuplexTumble"_s);
    EXPECT_EQ(listed(presentConflicts(printer())), u"PageSize=EnvDL Duplex=DuplexTumble"_s);
}

TEST_F(ConflictsTest, FindsNoWayAroundMissingHardware)
{
    EXPECT_EQ(conflictReason(printer(), u"Staple"_s, u"True"_s), u"not with Stapler: Not Installed"_s);
    EXPECT_EQ(resolved(u"Staple"_s, u"True"_s), u"(none)"_s);
}

TEST_F(ConflictsTest, FindsNoWayWhereEveryOtherChoiceConflicts)
{
    EXPECT_EQ(listed(conflictsOf(printer(), u"Seal"_s, u"Wax"_s)), u"MediaType=Plain"_s);
    EXPECT_EQ(resolved(u"Seal"_s, u"Wax"_s), u"(none)"_s);
}

TEST_F(ConflictsTest, ResolvesWhatLibcupsPassesOver)
{
    set(u"Seal"_s, u"Foil"_s);
    EXPECT_EQ(listed(conflictsOf(printer(), u"Collate"_s, u"True"_s)), u"Seal=Foil"_s);
    EXPECT_EQ(resolved(u"Collate"_s, u"True"_s), u"Seal=None"_s);
}

TEST_F(ConflictsTest, NeverTakesBackTheChoiceThatWasMade)
{
    open("pages-utf8.ppd");
    set(u"Glossy"_s, u"True"_s);
    EXPECT_EQ(resolved(u"MediaType"_s, u"Buetten"_s), u"Glossy=False"_s);
    set(u"Glossy"_s, u"False"_s);
    set(u"MediaType"_s, u"Buetten"_s);
    // The PPD's own resolver knows nothing but taking the gloss away.
    EXPECT_EQ(conflictReason(printer(), u"Glossy"_s, u"True"_s), u"not with Media Type: Büttenpapier – rau"_s);
    EXPECT_EQ(resolved(u"Glossy"_s, u"True"_s), u"(none)"_s);
}

TEST_F(ConflictsTest, KnowsConstraintsOfThreeOptions)
{
    open("pages-utf8.ppd");
    EXPECT_EQ(listed(conflictsOf(printer(), u"Coating"_s, u"Varnish"_s)), QString());
    set(u"Glossy"_s, u"True"_s);
    EXPECT_EQ(listed(conflictsOf(printer(), u"Coating"_s, u"Varnish"_s)), u"Glossy=True MediaType=Plain"_s);
    EXPECT_EQ(listed(conflictsOf(printer(), u"Coating"_s, u"Lack"_s)), QString());
}

TEST_F(ConflictsTest, KnowsConstraintsOfCustomSizesAndOfAnyChoice)
{
    open("pages-utf8.ppd");
    set(u"Coating"_s, u"Lack"_s);
    EXPECT_EQ(listed(conflictsOf(printer(), u"PageSize"_s, u"Custom.300x400"_s)), u"Coating=Lack"_s);
    EXPECT_EQ(listed(conflictsOf(printer(), u"PageSize"_s, u"Letter"_s)), QString());
    EXPECT_EQ(resolved(u"PageSize"_s, u"Custom.300x400"_s), u"Coating=None"_s);
    set(u"Coating"_s, u"None"_s);
    EXPECT_EQ(listed(conflictsOf(printer(), u"PageSize"_s, u"Custom.300x400"_s)), QString());
    set(u"PageSize"_s, u"Custom.300x400"_s);
    EXPECT_EQ(listed(conflictsOf(printer(), u"Coating"_s, u"Lack"_s)), u"PageSize=Custom"_s);
}

TEST_F(ConflictsTest, AnswersNothingForWhatThePpdDoesNotHave)
{
    for (const auto &[key, choice] : {std::pair(u"Nothing"_s, u"x"_s), std::pair(u"Seal"_s, u"37"_s)}) {
        EXPECT_EQ(listed(conflictsOf(printer(), key, choice)), QString());
        EXPECT_EQ(conflictReason(printer(), key, choice), QString());
        EXPECT_EQ(resolved(key, choice), u"(none)"_s);
    }
}

TEST_F(ConflictsTest, ChangesNoMarks)
{
    set(u"PageSize"_s, u"EnvDL"_s);
    set(u"Duplex"_s, u"DuplexTumble"_s);
    set(u"Staple"_s, u"True"_s);
    const QStringList before = test::marks(printer());
    EXPECT_TRUE(before.contains(u"PageSize=EnvDL"_s));
    for (const QString &key : settings_->optionKeys()) {
        const ppd_option_t *option = ppdFindOption(printer().ppd(), key.toUtf8().constData());
        for (int i = 0; i < option->num_choices; ++i) {
            const QString choice = QString::fromUtf8(option->choices[i].choice);
            conflictReason(printer(), key, choice);
            resolution(printer(), key, choice);
        }
    }
    presentConflicts(printer());
    EXPECT_EQ(test::marks(printer()), before);
}

TEST_F(ConflictsTest, LeavesTheSampleInPeace)
{
    const auto sample = HostPrinter::sample(QStringLiteral(TESSARIN_SAMPLE_PPD));
    ASSERT_TRUE(sample.ok()) << sample.reason().toStdString();
    EXPECT_EQ(listed(presentConflicts(*sample.value())), QString());
    EXPECT_EQ(conflictReason(*sample.value(), u"vornCartridgeType"_s, u"MatteBlack"_s),
              u"not with Media Type: Photo Pearl 290 g"_s);
}

} // namespace
} // namespace tessarin::host
