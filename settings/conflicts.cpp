// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "settings/conflicts.h"

#include "printing/text.h"
#include "settings/option_catalogue.h"

#include <QByteArrayView>
#include <QStringList>

#include <algorithm>
#include <vector>

namespace tessarin::host {

namespace {

constexpr char kPageSize[] = "PageSize";
constexpr char kPageRegion[] = "PageRegion";

/// A list of options that a call of libcups makes.
struct OptionList {
    int count = 0;
    cups_option_t *list = nullptr;

    OptionList() = default;
    ~OptionList() { cupsFreeOptions(count, list); }
    OptionList(const OptionList &) = delete;
    OptionList &operator=(const OptionList &) = delete;
};

bool equal(QByteArrayView one, QByteArrayView other)
{
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

bool isSameKey(QByteArrayView one, QByteArrayView other)
{
    const auto isSize = [](QByteArrayView key) { return equal(key, kPageSize) || equal(key, kPageRegion); };
    return equal(one, other) || (isSize(one) && isSize(other));
}

/// One side of a constraint. Views into the open PPD.
struct Term {
    QByteArrayView key{};
    QByteArrayView choice{}; ///< empty: every choice that switches something on
};

/// "*CustomPageSize True" is how a constraint names the custom value of an option.
Term makeTerm(QByteArrayView key, QByteArrayView choice)
{
    constexpr QByteArrayView custom("Custom");
    if (key.size() > custom.size() && equal(key.first(custom.size()), custom) && equal(choice, "True")) {
        return {.key = key.sliced(custom.size()), .choice = custom};
    }
    return {.key = key, .choice = choice};
}

bool matches(const Term &term, QByteArrayView choice)
{
    if (term.choice.isEmpty()) {
        return !equal(choice, "None") && !equal(choice, "Off") && !equal(choice, "False");
    }
    constexpr QByteArrayView custom("Custom.");
    const bool isCustom = choice.size() > custom.size() && equal(choice.first(custom.size()), custom);
    return equal(term.choice, isCustom ? QByteArrayView("Custom") : choice);
}

QByteArrayView nextWord(QByteArrayView &text)
{
    text = text.trimmed();
    const auto end = std::find_if(text.begin(), text.end(), [](char c) { return c == ' ' || c == '\t'; });
    const QByteArrayView word = text.first(end - text.begin());
    text = text.sliced(word.size());
    return word;
}

/// The sides of a constraint such as "*MediaType Canvas *Quality Draft".
std::vector<Term> readTerms(QByteArrayView text)
{
    std::vector<Term> terms;
    QByteArrayView word = nextWord(text);
    while (!word.isEmpty()) {
        const QByteArrayView key = word.sliced(word.front() == '*' ? 1 : 0);
        word = nextWord(text);
        const bool hasChoice = !word.isEmpty() && word.front() != '*';
        terms.push_back(makeTerm(key, hasChoice ? word : QByteArrayView()));
        word = hasChoice ? nextWord(text) : word;
    }
    return terms;
}

std::vector<std::vector<Term>> constraintsOf(ppd_file_t *ppd)
{
    std::vector<std::vector<Term>> all;
    for (int i = 0; i < ppd->num_consts; ++i) {
        const ppd_const_t &one = ppd->consts[i];
        all.push_back({makeTerm(one.option1, one.choice1), makeTerm(one.option2, one.choice2)});
    }
    constexpr char keyword[] = "cupsUIConstraints";
    for (const ppd_attr_t *attribute = ppdFindAttr(ppd, keyword, nullptr); attribute;
         attribute = ppdFindNextAttr(ppd, keyword, nullptr)) {
        all.push_back(readTerms(attribute->value));
    }
    return all;
}

/// Marks in `related` which of the active conflicts `found` come from this constraint: it names `wanted`, and all
/// that it names holds.
void relate(const std::vector<Term> &constraint, const Term &wanted, const OptionList &found,
            std::vector<bool> &related)
{
    bool namesWanted = false;
    std::vector<std::size_t> others;
    for (const Term &term : constraint) {
        if (isSameKey(term.key, wanted.key)) {
            namesWanted = true;
            if (!matches(term, wanted.choice)) {
                return;
            }
            continue;
        }
        cups_option_t *end = found.list + found.count;
        const cups_option_t *active = std::find_if(found.list, end, [&](const cups_option_t &one) {
            return isSameKey(term.key, one.name) && matches(term, one.value);
        });
        if (active == end) {
            return;
        }
        others.push_back(static_cast<std::size_t>(active - found.list));
    }
    for (const std::size_t other : others) {
        related[other] = related[other] || namesWanted;
    }
}

bool isInstalled(const HostPrinter &printer, const QString &key)
{
    const std::vector<PpdOptionPlace> all = optionsOf(*printer.ppd());
    return std::any_of(all.begin(), all.end(), [&](const PpdOptionPlace &place) {
        return isInstalledGroup(*place.group) && equal(place.option->keyword, key.toUtf8());
    });
}

QString markedChoice(const HostPrinter &printer, const QString &key)
{
    const ppd_choice_t *marked = ppdFindMarkedChoice(printer.ppd(), key.toUtf8().constData());
    return marked ? QString::fromUtf8(marked->choice) : QString();
}

bool isListed(const HostPrinter &printer, const QString &key, const QString &choice)
{
    ppd_option_t *option = ppdFindOption(printer.ppd(), key.toUtf8().constData());
    return option && ppdFindChoice(option, choice.toUtf8().constData());
}

/// Adds an option with its choice, once.
void add(QList<OptionChoice> &list, const HostPrinter &printer, const QByteArray &key, const QString &choice)
{
    const QString name = QLatin1String(equal(key, kPageRegion) ? QByteArrayView(kPageSize) : QByteArrayView(key));
    const bool known = std::any_of(list.begin(), list.end(), [&](const OptionChoice &one) {
        return one.key.compare(name, Qt::CaseInsensitive) == 0;
    });
    if (!known) {
        list << OptionChoice{.key = name,
                             .choice = choice,
                             .keyText = optionText(printer, name),
                             .choiceText = choiceText(printer, name, choice)};
    }
}

} // namespace

QList<OptionChoice> conflictsOf(const HostPrinter &printer, const QString &key, const QString &choice)
{
    QList<OptionChoice> conflicts;
    if (!isListed(printer, key, choice)) {
        return conflicts;
    }
    const QByteArray name = key.toUtf8();
    const QByteArray value = choice.toUtf8();
    OptionList found;
    found.count = cupsGetConflicts(printer.ppd(), name.constData(), value.constData(), &found.list);
    if (found.count == 0) {
        return conflicts;
    }
    // libcups answers all conflicts that there would be, also those that have nothing to do with this option.
    std::vector<bool> related(static_cast<std::size_t>(found.count), false);
    for (const std::vector<Term> &constraint : constraintsOf(printer.ppd())) {
        relate(constraint, {.key = name, .choice = value}, found, related);
    }
    for (int i = 0; i < found.count; ++i) {
        if (related[static_cast<std::size_t>(i)]) {
            add(conflicts, printer, found.list[i].name, QString::fromUtf8(found.list[i].value));
        }
    }
    return conflicts;
}

QString conflictReason(const HostPrinter &printer, const QString &key, const QString &choice)
{
    QStringList parts;
    for (const OptionChoice &conflict : conflictsOf(printer, key, choice)) {
        parts << TessarinPrint::tr("%1: %2").arg(conflict.keyText, conflict.choiceText);
    }
    //: %1 lists settings, such as "Media Type: Canvas"
    return parts.isEmpty() ? QString() : TessarinPrint::tr("not with %1").arg(parts.join(QStringLiteral(", ")));
}

std::optional<QList<OptionChoice>> resolution(const HostPrinter &printer, const QString &key, const QString &choice)
{
    if (!isListed(printer, key, choice)) {
        return std::nullopt;
    }
    const QByteArray name = key.toUtf8();
    const QByteArray value = choice.toUtf8();
    OptionList found;
    // libcups leaves one option, "Collate", out of what it looks at, unless it is among those already set.
    found.count = cupsAddOption(name.constData(), value.constData(), 0, &found.list);
    if (cupsResolveConflicts(printer.ppd(), name.constData(), value.constData(), &found.count, &found.list) == 0) {
        return std::nullopt;
    }
    QList<OptionChoice> changes;
    for (int i = 0; i < found.count; ++i) {
        const QByteArray changed = found.list[i].name;
        const QString newChoice = QString::fromUtf8(found.list[i].value);
        if (isSameKey(changed, name)) {
            if (newChoice.compare(choice, Qt::CaseInsensitive) != 0) {
                return std::nullopt; // it would take back the very choice that was made
            }
        } else if (isInstalled(printer, QString::fromUtf8(changed))) {
            return std::nullopt; // no setting makes hardware appear
        } else if (newChoice.compare(markedChoice(printer, QString::fromUtf8(changed)), Qt::CaseInsensitive) != 0) {
            add(changes, printer, changed, newChoice);
        }
    }
    return changes;
}

KeyValues resolvingChanges(const HostPrinter &printer, const QString &key, const QString &choice)
{
    KeyValues changes;
    for (const OptionChoice &change : resolution(printer, key, choice).value_or(QList<OptionChoice>())) {
        changes << KeyValue{.key = change.key, .value = change.choice};
    }
    return changes;
}

QList<OptionChoice> presentConflicts(const HostPrinter &printer)
{
    QList<OptionChoice> conflicts;
    QList<OptionChoice> installed;
    ppd_file_t *ppd = printer.ppd();
    if (ppdConflicts(ppd) == 0) {
        return conflicts;
    }
    for (const PpdOptionPlace &place : optionsOf(*ppd)) {
        const ppd_option_t &option = *place.option;
        if (option.conflicted) {
            const bool isRegion = equal(option.keyword, kPageRegion);
            add(isInstalledGroup(*place.group) ? installed : conflicts, printer, option.keyword,
                markedChoice(printer, QLatin1String(isRegion ? kPageSize : option.keyword)));
        }
    }
    return conflicts + installed;
}

} // namespace tessarin::host
