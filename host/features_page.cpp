// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/features_page.h"

#include "host/general_page.h"
#include "host/option_box.h"
#include "host/option_check.h"
#include "host/plain_text.h"
#include "printing/text.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QScrollArea>
#include <QSet>
#include <QVBoxLayout>

namespace tessarin::host {

namespace {

constexpr int kEasilySeen = 12; // as many options are found without a filter

} // namespace

FeaturesPage::FeaturesPage(JobSettings &settings, const QStringList &hiddenKeys, QWidget *parent) : QWidget(parent)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    auto *filterLine = new QLineEdit(this);
    filterLine->setObjectName(QStringLiteral("filter"));
    filterLine->setPlaceholderText(TessarinPrint::tr("Find a feature"));
    filterLine->setAccessibleName(TessarinPrint::tr("Find a feature"));
    filterLine->setClearButtonEnabled(true);
    connect(filterLine, &QLineEdit::textChanged, this, &FeaturesPage::filter);
    column->addWidget(filterLine);

    auto *area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setAccessibleName(TessarinPrint::tr("Printer Features"));
    auto *content = new QWidget(area);
    auto *groups = new QVBoxLayout(content);
    groups->setContentsMargins(0, 0, 0, 0);
    for (const CatalogueGroup &group : optionCatalogue(settings, hiddenKeys + GeneralPage::optionKeys())) {
        auto *box = new QGroupBox(withoutMnemonic(group.text), content);
        auto *form = new QFormLayout(box);
        form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
        for (const CatalogueOption &option : group.options) {
            addRow(settings, group, option, box, form);
        }
        groups->addWidget(box);
    }
    nothing_ = new QLabel(TessarinPrint::tr("This printer has no further features."), content);
    nothing_->setObjectName(QStringLiteral("noFeatures"));
    nothing_->setTextFormat(Qt::PlainText);
    nothing_->setWordWrap(true);
    nothing_->setVisible(rows_.isEmpty());
    groups->addWidget(nothing_);
    groups->addStretch(1);
    area->setWidget(content);
    column->addWidget(area, 1);
    filterLine->setVisible(rows_.size() > kEasilySeen);
}

void FeaturesPage::addRow(JobSettings &settings, const CatalogueGroup &group, const CatalogueOption &option,
                          QWidget *box, QFormLayout *form)
{
    Row row{.group = box, .words = group.text + u'\n' + option.text};
    for (const CatalogueChoice &choice : option.choices) {
        row.words += u'\n' + choice.text;
    }
    if (option.kind == OptionKind::Boolean) {
        auto *check = new OptionCheck(settings, option, box);
        connect(check, &OptionCheck::chosen, this, &FeaturesPage::chosen);
        row.refresh = [check] { check->refresh(); };
        row.control = check;
        form->addRow(check);
    } else {
        auto *choices = new OptionBox(settings, option, box);
        connect(choices, &OptionBox::chosen, this, &FeaturesPage::chosen);
        row.refresh = [choices] { choices->refresh(); };
        row.control = choices;
        // With a buddy a caption shows mnemonics whatever its text format is.
        row.caption = new QLabel(withoutMnemonic(TessarinPrint::tr("%1:").arg(option.text)), box);
        row.caption->setTextFormat(Qt::PlainText);
        row.caption->setBuddy(choices);
        form->addRow(row.caption, choices);
    }
    rows_ << row;
}

void FeaturesPage::refresh()
{
    for (const Row &row : rows_) {
        row.refresh();
    }
}

void FeaturesPage::filter(const QString &text)
{
    const QString wanted = text.simplified();
    QSet<QWidget *> shown;
    for (const Row &row : rows_) {
        const bool matches = row.words.contains(wanted, Qt::CaseInsensitive);
        if (row.caption) {
            row.caption->setVisible(matches);
        }
        row.control->setVisible(matches);
        if (matches) {
            shown << row.group;
        }
    }
    for (const Row &row : rows_) {
        row.group->setVisible(shown.contains(row.group));
    }
    nothing_->setText(TessarinPrint::tr("No feature of this printer has “%1” in its name or choices.").arg(wanted));
    nothing_->setVisible(shown.isEmpty());
}

} // namespace tessarin::host
