// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The tables of the documents against the program's own.

#include "controls/control_tables.h"
#include "ink/channel_table.h"

#include <QFile>
#include <QString>

#include <gtest/gtest.h>

namespace tessarin {
namespace {

using namespace Qt::StringLiterals;

QString document(const char *name)
{
    QFile file(QStringLiteral(TESSARIN_SOURCE_DIR "/") + QLatin1String(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return QString::fromUtf8(file.readAll());
}

/// The smallest and the largest number that a slider sends.
std::pair<int, int> rangeOf(const ScrollRow &row)
{
    return {row.minimum * row.ppdStep + row.ppdOffset, row.maximum * row.ppdStep + row.ppdOffset};
}

TEST(DriverGuide, HasEverySliderWithItsRange)
{
    const QString guide = document("docs/driver-guide.md");
    for (std::size_t row = 0; row < kSliderCount; ++row) {
        const auto [least, largest] = rangeOf(Scrolls[row]);
        const QString line = u"| `%1` | %2 | %3 | %4 | %5 |"_s
                                 .arg(QLatin1String(Scrolls[row].keyword), QLatin1String(Scrolls[row].label))
                                 .arg(least)
                                 .arg(largest)
                                 .arg(Scrolls[row].ppdStep);
        EXPECT_TRUE(guide.contains(line)) << line.toStdString();
    }
}

TEST(DriverGuide, HasEveryPopUpCheckBoxAndChannel)
{
    const QString guide = document("docs/driver-guide.md");
    for (std::size_t row = 0; row < kPopUpCount; ++row) {
        const QString line =
            u"| `%1` | %2 |"_s.arg(QLatin1String(keywordWithoutStar(pops[row])), QLatin1String(pops[row].label));
        EXPECT_TRUE(guide.contains(line)) << line.toStdString();
    }
    for (std::size_t row = 0; row < kCheckBoxCount; ++row) {
        const QLatin1String keyword(checkboxes[row].keyword);
        const int on =
            keyword == QLatin1String("vornPSInterpreter") ? 0 : 1; // the only box that is the other way round
        EXPECT_TRUE(guide.contains(u"| `%1` | `%2`"_s.arg(keyword, QString::number(on)))) << keyword.data();
    }
    const QString inOneLine = QString(guide).replace(u'\n', u' ');
    for (std::size_t channel = 0; channel < kInkChannelCount; ++channel) {
        const QLatin1String code(inklevels[channel].code);
        EXPECT_TRUE(inOneLine.contains(u"`%1` ("_s.arg(code))) << code.data();
    }
}

TEST(ManPage, HasEveryOptionWithItsRange)
{
    const QString page = document("packaging/man/tessarin-settings.7");
    for (std::size_t row = 0; row < kSliderCount; ++row) {
        const auto [least, largest] = rangeOf(Scrolls[row]);
        QString line = u"\n%1\t%2\t%3\t%4\t"_s.arg(QLatin1String(Scrolls[row].keyword))
                           .arg(least)
                           .arg(largest)
                           .arg(Scrolls[row].ppdStep);
        line.replace(u'-', u"\\-"_s);
        EXPECT_TRUE(page.contains(line)) << line.toStdString();
    }
    for (std::size_t row = 0; row < kPopUpCount; ++row) {
        EXPECT_TRUE(page.contains(u".B %1\n"_s.arg(QLatin1String(keywordWithoutStar(pops[row])))));
    }
}

} // namespace
} // namespace tessarin
