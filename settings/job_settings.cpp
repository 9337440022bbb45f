// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "settings/job_settings.h"

#include "settings/page_ranges.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tessarin::host {

namespace {

constexpr char kSeparatorText[] = "---separator---";
constexpr char kColorModel[] = "ColorModel";
constexpr char kCollateOption[] = "Collate";
constexpr std::array kGreyWords = {"gray", "grey", "mono", "black"};
constexpr int kMostCopies = 9999;

const JobAttribute *findAttribute(const QString &key)
{
    const QList<JobAttribute> &all = jobAttributes();
    const auto found = std::find_if(all.begin(), all.end(), [&](const JobAttribute &attribute) {
        return key.compare(QLatin1String(attribute.name), Qt::CaseInsensitive) == 0;
    });
    return found == all.end() ? nullptr : &*found;
}

bool isOneOf(const QString &value, std::initializer_list<const char *> values)
{
    return std::any_of(values.begin(), values.end(), [&](const char *one) { return value == QLatin1String(one); });
}

/// An attribute's value as it is kept; nothing for one that is not possible.
std::optional<QString> checkedAttribute(const JobAttribute &attribute, const QString &value)
{
    const QLatin1String name(attribute.name);
    bool possible = false;
    if (name == QLatin1String(kCopies)) {
        bool isNumber = false;
        const int copies = value.toInt(&isNumber);
        return isNumber && copies >= 1 && copies <= kMostCopies ? std::optional(QString::number(copies))
                                                                : std::nullopt;
    }
    if (name == QLatin1String(kPageRanges)) {
        const Outcome<std::vector<PageRange>> ranges = parsePageRanges(value);
        return ranges.ok() ? std::optional(normalPageRanges(ranges.value())) : std::nullopt;
    }
    if (name == QLatin1String(kCollate)) {
        possible = isOneOf(value, {kCollated, kUncollated});
    } else if (name == QLatin1String(kPageSet)) {
        possible = isOneOf(value, {"all", "odd", "even"});
    } else if (name == QLatin1String(kOrientation)) {
        possible = isOneOf(value, {"", "3", "4", "5", "6"});
    } else if (name == QLatin1String(kNumberUp)) {
        possible = isOneOf(value, {"1", "2", "4", "6", "9", "16"});
    }
    return possible ? std::optional(value) : std::nullopt;
}

QString sidesOf(const QString &duplex)
{
    if (duplex == QLatin1String("DuplexNoTumble")) {
        return QStringLiteral("two-sided-long-edge");
    }
    if (duplex == QLatin1String("DuplexTumble")) {
        return QStringLiteral("two-sided-short-edge");
    }
    return QStringLiteral("one-sided");
}

QString collationOf(const QString &collate)
{
    return QLatin1String(collate.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0 ? kUncollated
                                                                                           : kCollated);
}

/// The PPD's choice for a "sides" attribute; the text itself where it is none.
QString duplexOf(const QString &sides)
{
    for (const char *duplex : {"None", "DuplexNoTumble", "DuplexTumble"}) {
        if (sidesOf(QLatin1String(duplex)) == sides) {
            return QLatin1String(duplex);
        }
    }
    return sides;
}

} // namespace

const QList<JobAttribute> &jobAttributes()
{
    static const QList<JobAttribute> attributes = {
        {.name = kCopies, .defaultValue = "1"},     {.name = kCollate, .defaultValue = kCollated},
        {.name = kPageRanges, .defaultValue = ""},  {.name = kPageSet, .defaultValue = "all"},
        {.name = kOrientation, .defaultValue = ""}, {.name = kNumberUp, .defaultValue = "1"},
    };
    return attributes;
}

bool isPossibleAttribute(const char *name, const QString &value)
{
    const JobAttribute *attribute = findAttribute(QLatin1String(name));
    return attribute && checkedAttribute(*attribute, value).has_value();
}

JobSettings::JobSettings(std::shared_ptr<HostPrinter> printer) : printer_(std::move(printer))
{
    const ppd_file_t *ppd = printer_->ppd();
    for (const PpdOptionPlace &place : optionsOf(*ppd)) {
        const QString key = QString::fromUtf8(place.option->keyword);
        defaults_.insert(key.toLower(), optionValue(key));
        if (!isInstalledGroup(*place.group) && key != QLatin1String("PageRegion")) {
            optionKeys_ << key;
        }
    }
    for (const JobAttribute &attribute : jobAttributes()) {
        const QString name = QLatin1String(attribute.name);
        QString value = QLatin1String(attribute.defaultValue);
        if (name == QLatin1String(kCollate) && hasOption(QLatin1String(kCollateOption))) {
            value = collationOf(optionValue(QLatin1String(kCollateOption)));
        }
        // However many copies somebody made a default of, this job gets as many as are asked for.
        if (const auto saved = printer_->savedOptions().value(name); saved && name != QLatin1String(kCopies)) {
            value = checkedAttribute(attribute, *saved).value_or(value);
        }
        defaults_.insert(name, value);
    }
}

bool JobSettings::hasOption(const QString &key) const
{
    return ppdFindOption(printer_->ppd(), key.toUtf8().constData()) != nullptr;
}

bool JobSettings::knows(const QString &key) const
{
    return hasOption(key) || findAttribute(key) != nullptr;
}

QString JobSettings::optionValue(const QString &key) const
{
    const ppd_choice_t *marked = ppdFindMarkedChoice(printer_->ppd(), key.toUtf8().constData());
    return marked ? QString::fromUtf8(marked->choice) : QString();
}

QString JobSettings::value(const QString &key) const
{
    if (const std::optional<QString> set = ticket_.value(key)) {
        return *set;
    }
    return findAttribute(key) ? defaultValue(key) : optionValue(key);
}

QString JobSettings::defaultValue(const QString &key) const
{
    return defaults_.value(key.toLower());
}

bool JobSettings::differsFromDefault(const QString &key) const
{
    return value(key) != defaultValue(key);
}

bool JobSettings::set(const QString &key, const QString &value, ChangeOrigin origin)
{
    // A zero byte would let libcups see less of a text than the ticket keeps.
    if (key.isEmpty() || key.contains(QChar(u'\0')) || value.contains(QChar(u'\0'))) {
        return false;
    }
    ppd_option_t *collate = ppdFindOption(printer_->ppd(), kCollateOption);
    if (const JobAttribute *attribute = findAttribute(key)) {
        const bool isSet = setAttribute(*attribute, value, origin);
        if (isSet && collate && key.compare(QLatin1String(kCollate), Qt::CaseInsensitive) == 0) {
            setOption(*collate,
                      value == QLatin1String(kUncollated) ? QStringLiteral("False") : QStringLiteral("True"),
                      origin);
        }
        return isSet;
    }
    ppd_option_t *option = ppdFindOption(printer_->ppd(), key.toUtf8().constData());
    if (!option || value == QLatin1String(kSeparatorText) || !setOption(*option, value, origin)) {
        return false;
    }
    if (option == collate) {
        setAttribute(*findAttribute(QLatin1String(kCollate)), collationOf(value), origin);
    }
    return true;
}

bool JobSettings::setOption(ppd_option_t &option, const QString &value, ChangeOrigin origin)
{
    const QString keyword = QString::fromUtf8(option.keyword);
    const QString before = this->value(keyword);
    const ppd_choice_t *listed = ppdFindChoice(&option, value.toUtf8().constData());
    if (!listed && !isWholeNumber(value)) {
        return false;
    }
    QString taken = value;
    if (listed) {
        // The look-up ignores case, and takes "Custom.<size>" for the choice "Custom": the first is corrected, the
        // second kept, for the size is part of what the job needs.
        const QString name = QString::fromUtf8(listed->choice);
        taken = name.compare(value, Qt::CaseInsensitive) == 0 ? name : value;
        ppdMarkOption(printer_->ppd(), option.keyword, value.toUtf8().constData());
    }
    ticket_.set(keyword, taken);
    if (taken != before) {
        emit changed(keyword, taken, origin);
    }
    return true;
}

bool JobSettings::setAttribute(const JobAttribute &attribute, const QString &value, ChangeOrigin origin)
{
    const std::optional<QString> checked = checkedAttribute(attribute, value);
    if (!checked) {
        return false;
    }
    const QString name = QLatin1String(attribute.name);
    const QString before = this->value(name);
    ticket_.set(name, *checked);
    if (*checked != before) {
        emit changed(name, *checked, origin);
    }
    return true;
}

KeyValue JobSettings::meant(const KeyValue &written) const
{
    const auto is = [&](const char *key) {
        return written.key.compare(QLatin1String(key), Qt::CaseInsensitive) == 0;
    };
    if (hasOption(written.key)) {
        return written;
    }
    if (const JobAttribute *attribute = findAttribute(written.key)) {
        return {.key = QLatin1String(attribute->name),
                .value = checkedAttribute(*attribute, written.value).value_or(written.value)};
    }
    if (is("media") && hasOption(QStringLiteral("PageSize"))) {
        return {.key = QStringLiteral("PageSize"), .value = written.value};
    }
    if (is("sides") && hasOption(QStringLiteral("Duplex"))) {
        return {.key = QStringLiteral("Duplex"), .value = duplexOf(written.value)};
    }
    if (is("landscape")) {
        const bool on = written.value.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0;
        return {.key = QLatin1String(kOrientation), .value = on ? QStringLiteral("4") : QString()};
    }
    return written;
}

bool JobSettings::setAsWritten(const KeyValue &written)
{
    const auto is = [&](const char *key) {
        return written.key.compare(QLatin1String(key), Qt::CaseInsensitive) == 0;
    };
    if (const KeyValue setting = meant(written); knows(setting.key)) {
        return set(setting.key, setting.value, ChangeOrigin::Host);
    }
    // Colour is the printer's own settings' business; an attribute that says otherwise would overrule them.
    if (is("print-color-mode") || is("ColorModel") || written.key.isEmpty() ||
        written.value.contains(QChar(u'\0')) || written.key.contains(QChar(u'\0'))) {
        return false;
    }
    ticket_.set(written.key, written.value);
    return true;
}

void JobSettings::setHint(const QString &key, const QString &value)
{
    const std::optional<QString> before = ticket_.hint(key);
    ticket_.setHint(key, value);
    if (before != value) {
        emit hintChanged(key, value);
    }
}

bool JobSettings::isGrey() const
{
    const QString hint = ticket_.hint(QLatin1String(kColorModel)).value_or(value(QLatin1String(kColorModel)));
    // The panel says "Gray"; a PPD's own option has words of its own for it: KGray, DeviceGray, BlackWhite, …
    return std::any_of(kGreyWords.begin(), kGreyWords.end(),
                       [&](const char *word) { return hint.contains(QLatin1String(word), Qt::CaseInsensitive); });
}

JobTicket JobSettings::completeTicket() const
{
    JobTicket complete = ticket_;
    for (const QString &key : optionKeys_) {
        if (const QString set = value(key); !set.isEmpty()) {
            complete.set(key, set);
        }
    }
    for (const JobAttribute &attribute : jobAttributes()) {
        const QString name = QLatin1String(attribute.name);
        complete.set(name, value(name));
    }
    const auto agree = [&](const char *option, const char *attribute, const auto &translate) {
        if (const QString set = value(QLatin1String(option)); !set.isEmpty()) {
            complete.set(QLatin1String(attribute), translate(set));
        }
    };
    agree("PageSize", "media", [](const QString &size) { return size; });
    agree("Duplex", "sides", sidesOf);
    if (ticket_.hint(QLatin1String(kColorModel)) || hasOption(QLatin1String(kColorModel))) {
        complete.set(QStringLiteral("print-color-mode"),
                     isGrey() ? QStringLiteral("monochrome") : QStringLiteral("color"));
    }
    complete.removeEmpty();
    return complete;
}

} // namespace tessarin::host
