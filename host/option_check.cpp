// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/option_check.h"

#include "host/line_label.h"
#include "host/plain_text.h"
#include "printing/text.h"
#include "settings/conflicts.h"

#include <QHBoxLayout>

namespace tessarin::host {

namespace {

QString choiceFor(bool on)
{
    return on ? QStringLiteral("True") : QStringLiteral("False");
}

} // namespace

OptionCheck::OptionCheck(JobSettings &settings, const CatalogueOption &option, QWidget *parent)
    : QWidget(parent), settings_(settings), option_(option),
      box_(new QCheckBox(withoutMnemonic(option.text), this)), reason_(new LineLabel(QString(), this))
{
    box_->setObjectName(option_.key);
    box_->setAccessibleName(option_.text);
    reason_->setForegroundRole(QPalette::PlaceholderText);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(box_);
    row->addWidget(reason_, 1);
    setFocusProxy(box_);
    connect(box_, &QCheckBox::clicked, this, [this](bool on) {
        refresh();
        if (choiceFor(on) != settings_.value(option_.key)) {
            QMetaObject::invokeMethod(
                this, [this, on] { emit chosen(option_.key, choiceFor(on)); }, Qt::QueuedConnection);
        }
    });
    connect(&settings_, &JobSettings::changed, this, &OptionCheck::refresh);
    refresh();
}

void OptionCheck::refresh()
{
    const bool isOn = settings_.value(option_.key) == choiceFor(true);
    box_->setChecked(isOn);
    QString reason;
    // What is in conflict as it is comes before what cannot be switched.
    for (const bool on : {isOn, !isOn}) {
        const QString conflict = conflictReason(settings_.printer(), option_.key, choiceFor(on));
        if (reason.isEmpty() && !conflict.isEmpty()) {
            //: %1 is a choice, %2 says what it does not go with
            reason = TessarinPrint::tr("%1 – %2").arg(choiceText(settings_.printer(), option_.key, choiceFor(on)),
                                                      conflict);
        }
    }
    reason_->setText(reason);
    box_->setAccessibleDescription(reason);
}

} // namespace tessarin::host
