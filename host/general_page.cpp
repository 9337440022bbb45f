// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/general_page.h"

#include "host/custom_size_dialog.h"
#include "host/focus_order.h"
#include "host/input_guard.h"
#include "printing/text.h"
#include "settings/option_catalogue.h"
#include "settings/page_ranges.h"

#include <QSignalBlocker>
#include <QVBoxLayout>

namespace tessarin::host {

namespace {

constexpr int kMostCopies = 9999;
constexpr int kSpacing = 12;
constexpr int kLongest = 24; // characters that a pop-up makes room for
constexpr char kPageSize[] = "PageSize";
constexpr char kDuplex[] = "Duplex";

} // namespace

GeneralPage::GeneralPage(JobSettings &settings, QWidget *parent)
    : QWidget(parent), settings_(settings), row_(new QHBoxLayout(this)), copies_(new QSpinBox(this)),
      collate_(new QCheckBox(TessarinPrint::tr("C&ollate"), this)),
      allPages_(new QRadioButton(TessarinPrint::tr("&All"), this)),
      somePages_(new QRadioButton(TessarinPrint::tr("Pa&ges:"), this)), ranges_(new QLineEdit(this)),
      rangesProblem_(new QLabel(this))
{
    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    row_->setContentsMargins(0, 0, 0, 0);
    row_->setSpacing(kSpacing);
    row_->addLayout(form, 1);

    makeCopies(form);
    makePages(form);
    addAttribute(form, TessarinPrint::tr("O&f these:"), kPageSet,
                 {QStringLiteral("all"), QStringLiteral("odd"), QStringLiteral("even")});
    addOption(form, TessarinPrint::tr("Pap&er size:"), kPageSize);
    addAttribute(
        form, TessarinPrint::tr("Or&ientation:"), kOrientation,
        {QStringLiteral(""), QStringLiteral("3"), QStringLiteral("4"), QStringLiteral("6"), QStringLiteral("5")});
    addOption(form, TessarinPrint::tr("&Two-sided:"), kDuplex);
    addAttribute(form, TessarinPrint::tr("Pages per s&heet:"), kNumberUp,
                 {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("4"), QStringLiteral("6"),
                  QStringLiteral("9"), QStringLiteral("16")});

    connect(&settings_, &JobSettings::changed, this, &GeneralPage::refresh);
    refresh();
}

namespace {

/// Gives a pop-up room for its choices, the longest ones excepted: they must not push the preview aside.
void makeRoom(QComboBox &box)
{
    const QFontMetrics metrics = box.fontMetrics();
    int widest = 0;
    for (int i = 0; i < box.count(); ++i) {
        widest = qMax(widest, metrics.horizontalAdvance(box.itemText(i)));
    }
    const int character = qMax(1, metrics.horizontalAdvance(u'X')); // the toolkit's measure
    box.setMinimumContentsLength(
        qBound(box.minimumContentsLength(), (widest + character - 1) / character, kLongest));
}

} // namespace

QStringList GeneralPage::optionKeys()
{
    return {QLatin1String(kPageSize), QLatin1String(kDuplex)};
}

void GeneralPage::addOption(QFormLayout *form, const QString &caption, const char *key)
{
    const CatalogueOption option = catalogueOption(settings_.printer(), QLatin1String(key));
    if (option.choices.size() < 2) {
        return;
    }
    auto *box = new OptionBox(settings_, option, this);
    form->addRow(caption, box);
    connect(box, &OptionBox::chosen, this, &GeneralPage::chosen);
    if (key == kPageSize && takesCustomSizes(settings_.printer())) {
        box->offerMore(TessarinPrint::tr("Custom Size…"));
        connect(box, &OptionBox::moreWanted, this, &GeneralPage::askForSize);
    }
    makeRoom(*box);
    options_ << box;
}

void GeneralPage::askForSize()
{
    const QByteArray now = settings_.value(QLatin1String(kPageSize)).toUtf8();
    const ppd_size_t *size = ppdPageSize(settings_.printer().ppd(), now.constData());
    auto *dialog = new CustomSizeDialog(
        settings_.printer(),
        size ? QSizeF(static_cast<qreal>(size->width), static_cast<qreal>(size->length)) : QSizeF(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this,
            [this, dialog] { emit chosen(QLatin1String(kPageSize), dialog->choice()); });
    dialog->open();
}

QComboBox *GeneralPage::addAttribute(QFormLayout *form, const QString &caption, const char *key,
                                     const QStringList &values)
{
    const QString name = QLatin1String(key);
    auto *box = new QComboBox(this);
    box->setObjectName(name);
    box->setAccessibleName(settingText(settings_, name));
    guardInput(*box);
    for (const QString &value : values) {
        box->addItem(settingValueText(settings_, name, value), value);
    }
    form->addRow(caption, box);
    connect(box, &QComboBox::activated, this,
            [this, box, name](int index) { emit chosen(name, box->itemData(index).toString()); });
    attributes_ << box;
    return box;
}

void GeneralPage::makeCopies(QFormLayout *form)
{
    copies_->setObjectName(QLatin1String(kCopies));
    copies_->setAccessibleName(TessarinPrint::tr("Copies"));
    copies_->setRange(1, kMostCopies);
    guardInput(*copies_);
    connect(copies_, &QSpinBox::valueChanged, this,
            [this](int copies) { emit chosen(QLatin1String(kCopies), QString::number(copies)); });
    collate_->setObjectName(QLatin1String(kCollate));
    collate_->setToolTip(TessarinPrint::tr("Whole copies one after the other"));
    connect(collate_, &QCheckBox::clicked, this, [this](bool collated) {
        emit chosen(QLatin1String(kCollate), QLatin1String(collated ? kCollated : kUncollated));
    });
    if (settings_.printer().kind() == PrinterKind::Pdf) {
        copies_->hide();
        collate_->hide();
        return;
    }
    auto *row = new QHBoxLayout;
    row->addWidget(copies_);
    row->addWidget(collate_, 1);
    auto *caption = new QLabel(TessarinPrint::tr("&Copies:"), this);
    caption->setBuddy(copies_);
    form->addRow(caption, row);
}

void GeneralPage::makePages(QFormLayout *form)
{
    allPages_->setObjectName(QStringLiteral("allPages"));
    somePages_->setObjectName(QStringLiteral("somePages"));
    ranges_->setObjectName(QLatin1String(kPageRanges));
    ranges_->setAccessibleName(TessarinPrint::tr("Pages to print"));
    ranges_->setPlaceholderText(TessarinPrint::tr("1-3, 5, 8-"));
    rangesProblem_->setObjectName(QStringLiteral("rangesProblem"));
    rangesProblem_->setTextFormat(Qt::PlainText);
    rangesProblem_->setWordWrap(true);
    rangesProblem_->hide();

    auto *pages = new QVBoxLayout;
    auto *some = new QHBoxLayout;
    some->addWidget(somePages_);
    some->addWidget(ranges_, 1);
    pages->addWidget(allPages_);
    pages->addLayout(some);
    pages->addWidget(rangesProblem_);
    form->addRow(TessarinPrint::tr("Print:"), pages);

    connect(allPages_, &QRadioButton::clicked, this, [this] {
        wantsRanges_ = false;
        chooseRanges();
    });
    connect(somePages_, &QRadioButton::clicked, this, [this] {
        wantsRanges_ = true;
        ranges_->setFocus();
        chooseRanges();
    });
    connect(ranges_, &QLineEdit::textEdited, this, [this] {
        wantsRanges_ = true;
        chooseRanges();
    });
}

void GeneralPage::chooseRanges()
{
    (wantsRanges_ ? somePages_ : allPages_)->setChecked(true);
    showProblem();
    const Outcome<std::vector<PageRange>> written = parsePageRanges(wantsRanges_ ? ranges_->text() : QString());
    if (written.ok()) {
        // To be without ranges is a value, too, which a null text is not.
        shownRanges_ = QStringLiteral("") + normalPageRanges(written.value());
        emit chosen(QLatin1String(kPageRanges), shownRanges_);
    }
}

void GeneralPage::showRanges()
{
    const QString value = settings_.value(QLatin1String(kPageRanges));
    const Outcome<std::vector<PageRange>> written = parsePageRanges(ranges_->text());
    const bool meansTheSame = written.ok() && normalPageRanges(written.value()) == value;
    // What a person writes stays as it is while it means the same, or cannot be read yet and nothing else changed.
    if (!meansTheSame && value != shownRanges_) {
        const QString text = settingValueText(settings_, QLatin1String(kPageRanges), value);
        ranges_->setText(value.isEmpty() ? QString() : text);
        wantsRanges_ = false;
    }
    wantsRanges_ = wantsRanges_ || !value.isEmpty();
    shownRanges_ = value;
    (wantsRanges_ ? somePages_ : allPages_)->setChecked(true);
    showProblem();
}

QString GeneralPage::problem() const
{
    if (!wantsRanges_) {
        return {};
    }
    if (ranges_->text().trimmed().isEmpty()) {
        return TessarinPrint::tr("Which pages? For example 1-3, 5, 8-");
    }
    return parsePageRanges(ranges_->text()).reason();
}

void GeneralPage::showProblem()
{
    const QString text = problem();
    rangesProblem_->setText(text);
    rangesProblem_->setVisible(!text.isEmpty());
    ranges_->setAccessibleDescription(text);
}

void GeneralPage::setPreview(QWidget *preview)
{
    row_->addWidget(preview, 1);
    orderFocus({this, preview});
}

void GeneralPage::refresh()
{
    const QSignalBlocker blocker(copies_);
    const int copies = settings_.value(QLatin1String(kCopies)).toInt();
    if (copies_->value() != copies) { // else the cursor would leave what is being typed
        copies_->setValue(copies);
    }
    collate_->setChecked(settings_.value(QLatin1String(kCollate)) == QLatin1String(kCollated));
    collate_->setEnabled(copies > 1);
    for (QComboBox *box : attributes_) {
        box->setCurrentIndex(box->findData(settings_.value(box->objectName())));
    }
    showRanges();
    for (OptionBox *box : options_) {
        box->refresh();
    }
}

} // namespace tessarin::host
