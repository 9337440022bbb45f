// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/typed_value.h"

#include "controls/control_tables.h"
#include "controls/sliders.h"
#include "cups/ppd_library.h"
#include "platform/numbers.h"

#include <algorithm>
#include <cstdlib>

namespace tessarin {

namespace {

/// What a format puts before and behind its number.
struct Unit {
    QString before;
    QString behind;
};

Unit unitOf(const ScrollRow &slider)
{
    const QString format = QString::fromLatin1(slider.format);
    const qsizetype from = format.indexOf(QLatin1Char('%'));
    const qsizetype to = format.indexOf(QLatin1Char('d'), from);
    return {format.left(from), format.mid(to + 1).replace(QLatin1String("%%"), QLatin1String("%"))};
}

std::optional<int> typedNumber(const ScrollRow &slider, const QString &typed)
{
    constexpr char16_t kMinusSign = 0x2212;
    // An input method may give digits and signs of full width.
    QString text = typed.normalized(QString::NormalizationForm_KC).trimmed();
    text.replace(QChar(kMinusSign), QLatin1Char('-'));
    const Unit unit = unitOf(slider);
    if (!unit.before.isEmpty() && text.startsWith(unit.before, Qt::CaseInsensitive)) {
        text.remove(0, unit.before.size());
    }
    if (!unit.behind.isEmpty() && text.endsWith(unit.behind)) {
        text.chop(unit.behind.size());
    }
    bool isNumber = false;
    const int number = text.trimmed().toInt(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

/// Whether a shown value is a better answer to a wanted one than the best so far.
bool isNearer(std::int32_t shown, std::int32_t best, std::int64_t wanted)
{
    const std::int64_t distance = std::abs(shown - wanted);
    const std::int64_t bestDistance = std::abs(best - wanted);
    return distance < bestDistance || (distance == bestDistance && shown > best);
}

} // namespace

std::optional<int> defaultPosition(const PanelContext &context, int row)
{
    const ScrollRow &slider = Scrolls[static_cast<std::size_t>(row)];
    ppd_option_t *option = ppdFindOption(context.ppdFile, slider.keyword);
    const ppd_choice_t *choice = option != nullptr ? ppdFindChoice(option, option->defchoice) : nullptr;
    const std::optional<std::int32_t> value = choice != nullptr ? readInteger(choice->choice) : std::nullopt;
    if (!value) {
        return std::nullopt;
    }
    return static_cast<int>(
        std::clamp<std::int64_t>(positionOfPPDValue(slider, *value), slider.minimum, slider.maximum));
}

std::optional<int> typedPosition(int row, const QString &typed)
{
    const ScrollRow &slider = Scrolls[static_cast<std::size_t>(row)];
    const std::optional<int> wanted = typedNumber(slider, typed);
    const auto [least, most] =
        std::minmax({shownValue(slider, slider.minimum), shownValue(slider, slider.maximum)});
    if (!wanted || *wanted < least || *wanted > most) {
        return std::nullopt;
    }
    int best = slider.minimum;
    for (int position = slider.minimum + 1; position <= slider.maximum; ++position) {
        if (isNearer(shownValue(slider, position), shownValue(slider, best), *wanted)) {
            best = position;
        }
    }
    return best;
}

QString valueText(int row, int position)
{
    return toQString(CreateScrollValueCFString(row, position));
}

} // namespace tessarin
