// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/custom_size_dialog.h"

#include "printing/text.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLocale>

#include <cmath>

namespace tessarin::host {

namespace {

constexpr double kPointsPerInch = 72;
constexpr double kMillimetresPerInch = 25.4;
constexpr int kMillimetreDecimals = 1;
constexpr int kInchDecimals = 2;

QString number(double length, int decimals)
{
    QString text = QString::number(length, 'f', decimals);
    while (text.endsWith(u'0')) {
        text.chop(1);
    }
    return text.endsWith(u'.') ? text.chopped(1) : text;
}

} // namespace

bool takesCustomSizes(const HostPrinter &printer)
{
    ppd_file_t *ppd = printer.ppd();
    return ppd->variable_sizes != 0 && ppdFindCustomOption(ppd, "PageSize") != nullptr && ppd->custom_max[0] > 0 &&
           ppd->custom_max[1] > 0;
}

CustomSizeDialog::CustomSizeDialog(const HostPrinter &printer, const QSizeF &size, QWidget *parent)
    : QDialog(parent), inInches_(QLocale().measurementSystem() == QLocale::ImperialUSSystem)
{
    setObjectName(QStringLiteral("customSize"));
    setWindowTitle(TessarinPrint::tr("Custom Paper Size"));
    const ppd_file_t *ppd = printer.ppd();
    width_ = makeLength(static_cast<double>(ppd->custom_min[0]), static_cast<double>(ppd->custom_max[0]),
                        size.width(), QStringLiteral("customWidth"));
    height_ = makeLength(static_cast<double>(ppd->custom_min[1]), static_cast<double>(ppd->custom_max[1]),
                         size.height(), QStringLiteral("customHeight"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *form = new QFormLayout(this);
    form->addRow(TessarinPrint::tr("&Width:"), width_);
    form->addRow(TessarinPrint::tr("&Height:"), height_);
    form->addRow(buttons);
}

QDoubleSpinBox *CustomSizeDialog::makeLength(double smallest, double largest, double value, const QString &name)
{
    const double unit = inInches_ ? kPointsPerInch : kPointsPerInch / kMillimetresPerInch;
    const int decimals = inInches_ ? kInchDecimals : kMillimetreDecimals;
    const double step = std::pow(10, decimals);
    auto *box = new QDoubleSpinBox(this);
    box->setObjectName(name);
    box->setDecimals(decimals);
    // Rounded inwards: what is shown as a limit is within it. The points themselves are no exact numbers.
    constexpr double hair = 1e-3;
    box->setRange(std::ceil(smallest / unit * step - hair) / step, std::floor(largest / unit * step + hair) / step);
    box->setValue(value / unit);
    box->setSuffix(inInches_ ? TessarinPrint::tr(" in") : TessarinPrint::tr(" mm"));
    const QString limits = QStringLiteral("%1 – %2").arg(box->textFromValue(box->minimum()),
                                                         box->textFromValue(box->maximum()) + box->suffix());
    box->setToolTip(limits);
    return box;
}

QString CustomSizeDialog::choice() const
{
    const int decimals = width_->decimals();
    return QStringLiteral("Custom.%1x%2%3")
        .arg(number(width_->value(), decimals), number(height_->value(), decimals),
             QLatin1String(inInches_ ? "in" : "mm"));
}

} // namespace tessarin::host
