// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/host_callback.h"

#include <QByteArray>

#include <algorithm>
#include <utility>

namespace tessarin::host {

namespace {

constexpr char kSeparatorText[] = "---separator---";
constexpr char kColorModelHint[] = "ColorModel";

/// A whole number as a driver reads it: an optional sign and ASCII digits, nothing else.
bool isWholeNumber(const QString &text)
{
    const qsizetype sign = text.startsWith(u'-') || text.startsWith(u'+') ? 1 : 0;
    return text.size() > sign && std::all_of(text.begin() + sign, text.end(), [](QChar character) {
               return character >= u'0' && character <= u'9';
           });
}

} // namespace

class DialogCallback::Session final : public pde::PrintSession {
public:
    explicit Session(pde::Printer &printer) : printer_(printer) {}

    pde::Printer *currentPrinter() override { return &printer_; }

private:
    pde::Printer &printer_; // owned by the callback, which owns this session too
};

DialogCallback::DialogCallback(std::shared_ptr<HostPrinter> printer)
    : printer_(std::move(printer)), session_(std::make_unique<Session>(*printer_))
{}

DialogCallback::~DialogCallback() = default;

pde::PrintSession *DialogCallback::printSession()
{
    return session_.get();
}

pde::Printer *DialogCallback::PMPrinter()
{
    return printer_.get();
}

ppd_file_s *DialogCallback::ppdFile()
{
    return printer_->ppd();
}

bool DialogCallback::willChangePPDOptionKeyValue(const QString &key, const QString &choice)
{
    if (key.isNull() || choice.isNull() || !accept(key, choice)) {
        return false;
    }
    if (observer_) {
        observer_(key, choice);
    }
    return true;
}

void DialogCallback::setChangeObserver(ChangeObserver observer)
{
    observer_ = std::move(observer);
}

bool DialogCallback::accept(const QString &key, const QString &choice)
{
    if (key == QLatin1String(kColorModelHint)) {
        ticket_.setHint(key, choice);
        return true;
    }
    // A zero byte would let libcups see less of a text than the ticket keeps.
    if (choice == QLatin1String(kSeparatorText) || key.contains(QChar(u'\0')) || choice.contains(QChar(u'\0'))) {
        return false;
    }
    ppd_option_t *option = ppdFindOption(printer_->ppd(), key.toUtf8().constData());
    if (!option) {
        return false;
    }
    const QString keyword = QString::fromUtf8(option->keyword);
    if (const ppd_choice_t *listed = ppdFindChoice(option, choice.toUtf8().constData())) {
        // The look-up ignores case, and takes "Custom.<size>" for the choice "Custom": the first is corrected, the
        // second kept, for the size is part of what the job needs.
        const QString name = QString::fromUtf8(listed->choice);
        ppdMarkOption(printer_->ppd(), option->keyword, choice.toUtf8().constData());
        ticket_.set(keyword, name.compare(choice, Qt::CaseInsensitive) == 0 ? name : choice);
        return true;
    }
    if (isWholeNumber(choice)) {
        ticket_.set(keyword, choice);
        return true;
    }
    return false;
}

} // namespace tessarin::host
