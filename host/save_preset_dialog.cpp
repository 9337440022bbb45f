// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/save_preset_dialog.h"

#include "host/general_page.h"
#include "printing/text.h"
#include "settings/preset_store.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

#include <utility>

namespace tessarin::host {

namespace {

constexpr int kNameLength = 40; // characters that there is room for

} // namespace

SavePresetDialog::SavePresetDialog(std::shared_ptr<OpenPrinter> printer, const QStringList &names, QWidget *parent)
    : QDialog(parent), printer_(std::move(printer)), names_(names), name_(new QLineEdit(this)),
      general_(new QCheckBox(TessarinPrint::tr("Paper and &layout"), this)),
      panel_(new QCheckBox(
          printer_->panel().name.isEmpty() ? TessarinPrint::tr("Printer settings") : printer_->panel().name, this)),
      features_(new QCheckBox(TessarinPrint::tr("Printer &features"), this)), problem_(new QLabel(this))
{
    setWindowTitle(TessarinPrint::tr("Save as Preset"));
    auto *caption = new QLabel(TessarinPrint::tr("&Name:"), this);
    caption->setBuddy(name_);
    name_->setObjectName(QStringLiteral("presetName"));
    name_->setMinimumWidth(kNameLength * fontMetrics().averageCharWidth());
    auto *keeps = new QLabel(TessarinPrint::tr("The preset keeps:"), this);
    problem_->setTextFormat(Qt::PlainText);
    problem_->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    save_ = buttons->addButton(TessarinPrint::tr("&Save"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *column = new QVBoxLayout(this);
    for (QWidget *widget :
         {static_cast<QWidget *>(caption), static_cast<QWidget *>(name_), static_cast<QWidget *>(keeps)}) {
        column->addWidget(widget);
    }
    const bool hasPanel = !printer_->panelKeys().isEmpty();
    panel_->setVisible(hasPanel);
    for (QCheckBox *box : {general_, panel_, features_}) {
        box->setChecked(true);
        column->addWidget(box);
        connect(box, &QCheckBox::toggled, this, &SavePresetDialog::check);
    }
    panel_->setChecked(hasPanel);
    column->addWidget(problem_);
    column->addWidget(buttons);
    connect(name_, &QLineEdit::textChanged, this, &SavePresetDialog::check);
    check();
}

QString SavePresetDialog::name() const
{
    return name_->text().trimmed();
}

bool SavePresetDialog::replaces() const
{
    return names_.contains(name(), Qt::CaseInsensitive);
}

KeyValues SavePresetDialog::values() const
{
    const JobSettings &settings = printer_->settings();
    const QStringList panelKeys = printer_->panelKeys();
    KeyValues values;
    for (const QString &key : lastingKeys(settings)) {
        const bool isGeneral = !settings.hasOption(key) || GeneralPage::optionKeys().contains(key);
        const QCheckBox *box = panelKeys.contains(key) ? panel_ : isGeneral ? general_ : features_;
        if (box->isChecked()) {
            values << KeyValue{.key = key, .value = settings.value(key)};
        }
    }
    return values;
}

void SavePresetDialog::check()
{
    const bool keepsSomething = general_->isChecked() || panel_->isChecked() || features_->isChecked();
    const QString wrong = name().isEmpty() ? QString() : presetNameProblem(name());
    problem_->setText(!wrong.isEmpty()  ? wrong
                      : !keepsSomething ? TessarinPrint::tr("Choose what the preset keeps.")
                      : replaces()      ? TessarinPrint::tr("This replaces the preset of the same name.")
                                        : QString());
    save_->setEnabled(!name().isEmpty() && wrong.isEmpty() && keepsSomething);
    makeRoom();
}

void SavePresetDialog::makeRoom()
{
    layout()->activate();
    const int needed = layout()->totalHeightForWidth(width());
    if (isVisible() && needed > height()) {
        resize(width(), needed); // a window does not grow of itself with a text of several lines
    }
}

} // namespace tessarin::host
