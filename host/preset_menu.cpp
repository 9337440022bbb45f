// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/preset_menu.h"

#include "host/save_preset_dialog.h"
#include "printing/text.h"
#include "printing/user_defaults.h"

#include <QInputDialog>
#include <QMessageBox>
#include <QtConcurrentRun>

#include <utility>

namespace tessarin::host {

namespace {

/// A text as a menu shows it: an ampersand in it is no mnemonic.
QString plain(QString text)
{
    return text.replace(u'&', QStringLiteral("&&"));
}

} // namespace

PresetMenu::PresetMenu(QWidget *parent) : QPushButton(TessarinPrint::tr("Pre&sets"), parent), menu_(new QMenu(this))
{
    setObjectName(QStringLiteral("presets"));
    setAutoDefault(false);
    setMenu(menu_);
    connect(menu_, &QMenu::aboutToShow, this, &PresetMenu::fill);
}

QString PresetMenu::defaultsName()
{
    return TessarinPrint::tr("Default settings");
}

QString PresetMenu::lastUsedName()
{
    return TessarinPrint::tr("Last used");
}

void PresetMenu::setPrinter(const QString &identity, const QueueName &queue)
{
    identity_ = identity;
    queue_ = queue;
    read();
}

void PresetMenu::read()
{
    Outcome<PresetStore> store = PresetStore::open(identity_);
    store_.reset();
    if (store.ok()) {
        store_ = store.take();
    }
    problem_ = store.reason();
}

void PresetMenu::setValuesSource(std::function<std::shared_ptr<OpenPrinter>()> source)
{
    source_ = std::move(source);
}

QStringList PresetMenu::names() const
{
    return store_ ? store_->names() : QStringList();
}

Outcome<KeyValues> PresetMenu::valuesOf(const QString &name) const
{
    using Result = Outcome<KeyValues>;
    if (!store_) {
        return Result::failed(problem_);
    }
    PresetValues found;
    // Scripts may name them in English in every language.
    if (name == defaultsName() || name == QLatin1String("Default settings")) {
        return KeyValues();
    }
    if (name == lastUsedName() || name == QLatin1String("Last used")) {
        found = store_->lastUsed();
    } else if (const std::optional<Preset> preset = store_->preset(name)) {
        found = preset->values;
    } else {
        return Result::failed(store_->notice().isEmpty()
                                  ? TessarinPrint::tr("preset %1: this printer has none of this name").arg(name)
                                  : TessarinPrint::tr("preset %1: %2").arg(name, store_->notice()));
    }
    KeyValues values;
    for (const auto &[key, value] : found) {
        values << KeyValue{.key = key, .value = value};
    }
    return values;
}

void PresetMenu::fill()
{
    menu_->clear();
    if (!identity_.isEmpty()) {
        read(); // another window may have changed them
    }
    menu_->addAction(defaultsName(), this, &PresetMenu::resetRequested);
    const QString last = lastUsedName();
    menu_->addAction(last, this, [this, last] { emit applyRequested(last); })
        ->setEnabled(store_ && !store_->lastUsed().empty());
    const QStringList presets = names();
    if (!presets.isEmpty()) {
        menu_->addSeparator();
    }
    for (const QString &name : presets) {
        menu_->addAction(plain(name), this, [this, name] { emit applyRequested(name); });
    }
    menu_->addSeparator();
    if (!store_ || !store_->notice().isEmpty()) {
        menu_->addAction(plain(store_ ? store_->notice() : problem_))->setEnabled(false);
    }
    const bool writable = store_ && !store_->isReadOnly();
    menu_->addAction(TessarinPrint::tr("&Save as Preset…"), this, &PresetMenu::save)->setEnabled(writable);
    QMenu *renaming = menu_->addMenu(TessarinPrint::tr("&Rename"));
    QMenu *removing = menu_->addMenu(TessarinPrint::tr("&Delete"));
    for (const QString &name : presets) {
        renaming->addAction(plain(name), this, [this, name] { rename(name); });
        removing->addAction(plain(name), this, [this, name] { remove(name); });
    }
    renaming->setEnabled(writable && !presets.isEmpty());
    removing->setEnabled(writable && !presets.isEmpty());
    menu_->addSeparator();
    menu_->addAction(TessarinPrint::tr("Make These &My Defaults"), this, &PresetMenu::makeDefaults)
        ->setEnabled(!queue_.queue.isEmpty() && !makingDefaults_);
}

void PresetMenu::report(const QString &failure, const QString &success)
{
    emit told(failure.isEmpty() ? success : failure);
}

QString PresetMenu::keep(const Preset &preset, SaveMode mode)
{
    return store_ ? store_->save(preset, mode) : problem_;
}

void PresetMenu::save()
{
    auto *dialog = new SavePresetDialog(source_(), names(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] {
        PresetValues values;
        for (const KeyValue &one : dialog->values()) {
            values.emplace_back(one.key, one.value);
        }
        const QString name = dialog->name();
        report(keep({.name = name, .values = values},
                    dialog->replaces() ? SaveMode::ReplaceExisting : SaveMode::KeepExisting),
               TessarinPrint::tr("Preset saved: %1").arg(name));
    });
    dialog->open();
}

void PresetMenu::rename(const QString &name)
{
    auto *question = new QInputDialog(this);
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setWindowTitle(TessarinPrint::tr("Rename Preset"));
    question->setLabelText(TessarinPrint::tr("New name of the preset:"));
    question->setTextValue(name);
    connect(question, &QInputDialog::textValueSelected, this, [this, name](const QString &newName) {
        report(store_->rename(name, newName), TessarinPrint::tr("Preset renamed: %1").arg(newName));
    });
    question->open();
}

void PresetMenu::remove(const QString &name)
{
    const std::optional<Preset> preset = store_->preset(name);
    const QString failure = store_->remove(name);
    if (!failure.isEmpty() || !preset) {
        emit told(failure);
        return;
    }
    emit undoOffered(TessarinPrint::tr("Preset deleted: %1").arg(name), [this, preset] {
        report(keep(*preset, SaveMode::KeepExisting), TessarinPrint::tr("Preset saved: %1").arg(preset->name));
    });
}

void PresetMenu::rememberLastUsed()
{
    const std::shared_ptr<OpenPrinter> printer = source_();
    if (!printer || !store_ || store_->isReadOnly()) {
        return;
    }
    PresetValues values;
    const JobSettings &settings = printer->settings();
    for (const QString &key : lastingKeys(settings)) {
        values.emplace_back(key, settings.value(key));
    }
    if (const QString failure = store_->saveLastUsed(values); !failure.isEmpty()) {
        emit told(failure);
    }
}

void PresetMenu::makeDefaults()
{
    const std::shared_ptr<OpenPrinter> printer = source_();
    CupsOptions options;
    for (const QString &key : lastingKeys(printer->settings())) {
        options.add(key, printer->settings().value(key));
    }
    makingDefaults_ = true;
    auto shared = std::make_shared<CupsOptions>(std::move(options));
    QtConcurrent::run([queue = queue_, shared] {
        return makeUserDefaults(queue, *shared);
    }).then(this, [this, name = queue_.text()](const Outcome<QString> &file) {
        makingDefaults_ = false;
        report(file.reason(),
               file.ok() ? TessarinPrint::tr("These settings are your defaults for %1 now, in every program (%2).")
                               .arg(name, file.value())
                         : QString());
    });
}

} // namespace tessarin::host
