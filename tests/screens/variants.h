// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The languages and sizes of the font that views are looked at in.

#ifndef TESSARIN_TESTS_SCREENS_VARIANTS_H
#define TESSARIN_TESTS_SCREENS_VARIANTS_H

#include <QApplication>
#include <QFont>

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace tessarin::test {

/// "en" and every language that the panel is translated into.
std::vector<std::string> shippedLanguages();

/// A language and the size of the font in percent.
using Variant = std::tuple<std::string, int>;

/// Every language, each with the usual font and one half as large again.
inline auto languagesAndFonts()
{
    return testing::Combine(testing::ValuesIn(shippedLanguages()), testing::Values(100, 150));
}

/// "de_150"
std::string variantName(const testing::TestParamInfo<Variant> &parameters);

/// "de"
std::string languageName(const testing::TestParamInfo<std::string> &parameters);

/// A larger font for all views as long as this object is there.
class FontScale {
public:
    explicit FontScale(int percent);
    ~FontScale();
    FontScale(const FontScale &) = delete;
    FontScale &operator=(const FontScale &) = delete;

private:
    QFont before_ = QApplication::font();
};

} // namespace tessarin::test

#endif
