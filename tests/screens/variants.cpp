// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/screens/variants.h"

#include <QDir>

namespace tessarin::test {

std::vector<std::string> shippedLanguages()
{
    std::vector<std::string> codes{"en"};
    const QDir folder(QStringLiteral(TESSARIN_TEST_BUNDLE "/translations"));
    for (const QString &file : folder.entryList({QStringLiteral("TessarinPDE_*.qm")})) {
        codes.push_back(file.mid(12).chopped(3).toStdString());
    }
    return codes;
}

std::string variantName(const testing::TestParamInfo<Variant> &parameters)
{
    const auto &[language, percent] = parameters.param;
    return language + "_" + std::to_string(percent);
}

std::string languageName(const testing::TestParamInfo<std::string> &parameters)
{
    return parameters.param;
}

FontScale::FontScale(int percent)
{
    QFont larger = before_;
    larger.setPointSizeF(larger.pointSizeF() * percent / 100);
    QApplication::setFont(larger);
}

FontScale::~FontScale()
{
    QApplication::setFont(before_);
}

} // namespace tessarin::test
