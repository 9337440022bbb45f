// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The menu of presets: what it offers, and what saving, renaming and deleting keep.

#include "host/preset_menu.h"
#include "host/save_preset_dialog.h"

#include "tests/host/host_test_support.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QInputDialog>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

class PresetMenuTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(config_.isValid());
        qputenv("XDG_CONFIG_HOME", config_.path().toUtf8());
        const auto printer = HostPrinter::fromPpdFile(test::fixture("pages.ppd"));
        ASSERT_TRUE(printer.ok()) << printer.reason().toStdString();
        printer_ = std::make_shared<OpenPrinter>(printer.value(), nullptr, u"no panel in this test"_s);
        menu_ = std::make_unique<PresetMenu>();
        menu_->setPrinter(u"photo"_s, {});
        menu_->setValuesSource([this] { return printer_; });
        QObject::connect(menu_.get(), &PresetMenu::told, [this](const QString &text) { told_ << text; });
        QObject::connect(menu_.get(), &PresetMenu::undoOffered,
                         [this](const QString &text, const std::function<void()> &undo) {
                             told_ << text;
                             undo_ = undo;
                         });
    }
    void TearDown() override { qunsetenv("XDG_CONFIG_HOME"); }

    /// The menu as it opens now.
    QList<QAction *> actions(const QString &submenu = {})
    {
        QMetaObject::invokeMethod(menu_->menu(), "aboutToShow");
        for (QAction *action : menu_->menu()->actions()) {
            if (action->menu() && action->text() == submenu) {
                return action->menu()->actions();
            }
        }
        return submenu.isEmpty() ? menu_->menu()->actions() : QList<QAction *>();
    }
    QAction *action(const QString &text, const QString &submenu = {})
    {
        for (QAction *action : actions(submenu)) {
            if (action->text() == text) {
                return action;
            }
        }
        ADD_FAILURE() << "no entry " << text.toStdString();
        return nullptr;
    }
    void trigger(const QString &text, const QString &submenu = {})
    {
        if (QAction *found = action(text, submenu)) {
            found->trigger();
        }
    }
    /// Saves what is set now under a name, as a person does; `boxes` are the ones left checked.
    void save(const QString &name, const QStringList &boxes = {u"Paper and &layout"_s, u"Printer &features"_s})
    {
        trigger(u"&Save as Preset…"_s);
        auto *dialog = menu_->findChild<SavePresetDialog *>();
        ASSERT_TRUE(dialog);
        dialog->findChild<QLineEdit *>(u"presetName"_s)->setText(name);
        for (QCheckBox *box : dialog->findChildren<QCheckBox *>()) {
            box->setChecked(boxes.contains(box->text()));
        }
        ASSERT_TRUE(saveButton(*dialog)->isEnabled());
        saveButton(*dialog)->click();
        delete dialog;
    }
    static QPushButton *saveButton(const SavePresetDialog &dialog)
    {
        for (QPushButton *button : dialog.findChildren<QPushButton *>()) {
            if (button->text() == u"&Save"_s) {
                return button;
            }
        }
        return nullptr;
    }
    QString presetValue(const QString &preset, const QString &key)
    {
        const Outcome<KeyValues> values = menu_->valuesOf(preset);
        if (!values.ok()) {
            return values.reason();
        }
        for (const KeyValue &one : values.value()) {
            if (one.key == key) {
                return one.value;
            }
        }
        return u"(not kept)"_s;
    }

    QTemporaryDir config_{};
    std::shared_ptr<OpenPrinter> printer_{};
    std::unique_ptr<PresetMenu> menu_{};
    QStringList told_{};
    std::function<void()> undo_{};
};

TEST_F(PresetMenuTest, AlwaysHasTheDefaultsAndTheLastUsed)
{
    QSignalSpy applied(menu_.get(), &PresetMenu::applyRequested);
    QSignalSpy reset(menu_.get(), &PresetMenu::resetRequested);
    trigger(u"Default settings"_s);
    EXPECT_EQ(reset.size(), 1);
    EXPECT_FALSE(action(u"Last used"_s)->isEnabled()) << "nothing was printed yet";
    menu_->rememberLastUsed();
    ASSERT_TRUE(action(u"Last used"_s)->isEnabled());
    trigger(u"Last used"_s);
    ASSERT_EQ(applied.size(), 1);
    EXPECT_EQ(applied.front().front().toString(), u"Last used"_s);
}

TEST_F(PresetMenuTest, KeepsAPresetOfWhatItIsAskedFor)
{
    printer_->settings().set(u"Quality"_s, u"Draft"_s, ChangeOrigin::Host);
    printer_->settings().set(QLatin1String(kNumberUp), u"4"_s, ChangeOrigin::Host);
    printer_->settings().set(QLatin1String(kCopies), u"7"_s, ChangeOrigin::Host);
    save(u"Features"_s, {u"Printer &features"_s});
    save(u"Layout"_s, {u"Paper and &layout"_s});
    EXPECT_EQ(told_, (QStringList{u"Preset saved: Features"_s, u"Preset saved: Layout"_s}));
    EXPECT_EQ(presetValue(u"Features"_s, u"Quality"_s), u"Draft"_s);
    EXPECT_EQ(presetValue(u"Features"_s, QLatin1String(kNumberUp)), u"(not kept)"_s);
    EXPECT_EQ(presetValue(u"Features"_s, u"PageSize"_s), u"(not kept)"_s);
    EXPECT_EQ(presetValue(u"Layout"_s, u"Quality"_s), u"(not kept)"_s);
    EXPECT_EQ(presetValue(u"Layout"_s, QLatin1String(kNumberUp)), u"4"_s);
    EXPECT_NE(presetValue(u"Layout"_s, u"PageSize"_s), u"(not kept)"_s);
    for (const char *preset : {"Features", "Layout"}) {
        EXPECT_EQ(presetValue(QLatin1String(preset), QLatin1String(kCopies)), u"(not kept)"_s);
    }
}

TEST_F(PresetMenuTest, NeverKeepsCopiesAsTheLastUsed)
{
    printer_->settings().set(u"Quality"_s, u"Draft"_s, ChangeOrigin::Host);
    printer_->settings().set(QLatin1String(kCopies), u"7"_s, ChangeOrigin::Host);
    menu_->rememberLastUsed();
    EXPECT_EQ(presetValue(PresetMenu::lastUsedName(), u"Quality"_s), u"Draft"_s);
    EXPECT_EQ(presetValue(PresetMenu::lastUsedName(), QLatin1String(kCopies)), u"(not kept)"_s);
}

TEST_F(PresetMenuTest, SavesOnlyWhatCanBeAPreset)
{
    save(u"Fine art"_s);
    trigger(u"&Save as Preset…"_s);
    auto *dialog = menu_->findChild<SavePresetDialog *>();
    ASSERT_TRUE(dialog);
    auto *name = dialog->findChild<QLineEdit *>(u"presetName"_s);
    const QPushButton *button = saveButton(*dialog);
    EXPECT_FALSE(button->isEnabled()) << "without a name";
    name->setText(u"Last used"_s);
    EXPECT_FALSE(button->isEnabled()) << "a name that is taken for good";
    name->setText(u"  fine ART "_s);
    EXPECT_TRUE(button->isEnabled());
    EXPECT_TRUE(dialog->replaces());
    const QList<QLabel *> labels = dialog->findChildren<QLabel *>();
    EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
        return label->text() == u"This replaces the preset of the same name."_s;
    }));
    name->setText(u"Proofs"_s);
    EXPECT_FALSE(dialog->replaces());
    for (QCheckBox *box : dialog->findChildren<QCheckBox *>()) {
        box->setChecked(false);
    }
    EXPECT_FALSE(button->isEnabled()) << "with nothing to keep";
    dialog->reject();
    EXPECT_EQ(menu_->names(), QStringList(u"Fine art"_s));
}

TEST_F(PresetMenuTest, ReplacesRenamesAndAppliesByName)
{
    save(u"Fine art"_s);
    printer_->settings().set(u"Quality"_s, u"Draft"_s, ChangeOrigin::Host);
    save(u"Fine art"_s);
    EXPECT_EQ(menu_->names(), QStringList(u"Fine art"_s));
    EXPECT_EQ(presetValue(u"Fine art"_s, u"Quality"_s), u"Draft"_s);

    trigger(u"Fine art"_s, u"&Rename"_s);
    auto *question = menu_->findChild<QInputDialog *>();
    ASSERT_TRUE(question);
    EXPECT_EQ(question->textValue(), u"Fine art"_s);
    question->setTextValue(u"R & D"_s);
    question->accept();
    EXPECT_EQ(told_.back(), u"Preset renamed: R & D"_s);
    EXPECT_EQ(presetValue(u"R & D"_s, u"Quality"_s), u"Draft"_s);

    QSignalSpy applied(menu_.get(), &PresetMenu::applyRequested);
    trigger(u"R && D"_s);
    ASSERT_EQ(applied.size(), 1);
    EXPECT_EQ(applied.front().front().toString(), u"R & D"_s);
}

TEST_F(PresetMenuTest, GivesADeletedPresetBack)
{
    printer_->settings().set(u"Quality"_s, u"Draft"_s, ChangeOrigin::Host);
    save(u"Fine art"_s);
    trigger(u"Fine art"_s, u"&Delete"_s);
    EXPECT_EQ(told_.back(), u"Preset deleted: Fine art"_s);
    EXPECT_TRUE(menu_->names().isEmpty());
    ASSERT_TRUE(undo_);
    undo_();
    EXPECT_EQ(told_.back(), u"Preset saved: Fine art"_s);
    EXPECT_EQ(presetValue(u"Fine art"_s, u"Quality"_s), u"Draft"_s);
}

TEST_F(PresetMenuTest, ShowsWhatAnotherWindowSaved)
{
    save(u"Mine"_s);
    Outcome<PresetStore> other = PresetStore::open(u"photo"_s);
    ASSERT_TRUE(other.ok());
    PresetStore store = other.take();
    ASSERT_EQ(store.save({.name = u"Theirs"_s, .values = {{u"Quality"_s, u"Draft"_s}}}, SaveMode::KeepExisting),
              u""_s);
    EXPECT_TRUE(action(u"Theirs"_s));
    EXPECT_TRUE(action(u"Mine"_s));
}

TEST_F(PresetMenuTest, ChangesNothingInTheFileOfALaterVersion)
{
    save(u"Fine art"_s);
    const Outcome<PresetStore> store = PresetStore::open(u"photo"_s);
    ASSERT_TRUE(store.ok());
    test::writeFile(store.value().path(), R"({"version":99,"presets":[]})");
    EXPECT_FALSE(action(u"&Save as Preset…"_s)->isEnabled());
    menu_->rememberLastUsed();
    EXPECT_EQ(test::readFile(store.value().path()), QByteArray(R"({"version":99,"presets":[]})"));
}

TEST_F(PresetMenuTest, SaysWhyThereAreNoPresets)
{
    save(u"Fine art"_s);
    const QString path = PresetStore::open(u"photo"_s).value().path();
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_TRUE(QDir().mkpath(path)); // a folder lies where the file should be
    EXPECT_FALSE(action(u"&Save as Preset…"_s)->isEnabled());
    const QList<QAction *> entries = actions();
    EXPECT_TRUE(std::any_of(entries.begin(), entries.end(), [&](const QAction *entry) {
        return !entry->isEnabled() && entry->text().contains(path);
    }));
}

TEST_F(PresetMenuTest, OffersTheUsersDefaultsForQueuesAlone)
{
    EXPECT_FALSE(action(u"Make These &My Defaults"_s)->isEnabled());
    menu_->setPrinter(u"photo"_s, {.queue = u"photo"_s});
    EXPECT_TRUE(action(u"Make These &My Defaults"_s)->isEnabled());
}

} // namespace
} // namespace tessarin::host
