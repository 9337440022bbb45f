// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "settings/host_callback.h"

#include <utility>

namespace tessarin::host {

namespace {

constexpr char kColorModelHint[] = "ColorModel";

} // namespace

class DialogCallback::Session final : public pde::PrintSession {
public:
    explicit Session(pde::Printer &printer) : printer_(printer) {}

    pde::Printer *currentPrinter() override { return &printer_; }

private:
    pde::Printer &printer_; // owned by the callback, which owns this session too
};

DialogCallback::DialogCallback(std::shared_ptr<JobSettings> settings)
    : settings_(std::move(settings)), session_(std::make_unique<Session>(settings_->printer()))
{}

DialogCallback::DialogCallback(std::shared_ptr<HostPrinter> printer)
    : DialogCallback(std::make_shared<JobSettings>(std::move(printer)))
{}

DialogCallback::~DialogCallback() = default;

pde::PrintSession *DialogCallback::printSession()
{
    return session_.get();
}

pde::Printer *DialogCallback::PMPrinter()
{
    return &settings_->printer();
}

ppd_file_s *DialogCallback::ppdFile()
{
    return settings_->printer().ppd();
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
        settings_->setHint(key, choice);
        return true;
    }
    // The panel sets options of the PPD; what else a job gets is no business of it.
    return settings_->hasOption(key) && settings_->set(key, choice, ChangeOrigin::Panel);
}

} // namespace tessarin::host
