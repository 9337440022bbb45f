// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plugin/password_pde.h"

#include "controls/setting_events.h"
#include "ink/level_display.h"
#include "ink/summary.h"
#include "platform/string_object.h"
#include "plugin/context_lifecycle.h"
#include "plugin/descriptions.h"
#include "plugin/log.h"
#include "plugin/restore.h"
#include "plugin/supported_options.h"
#include "plugin/survivors.h"
#include "plugin/view_setup.h"
#include "ppd/ticket.h"

#include <array>

namespace tessarin {

namespace {

constexpr int kLastBarTag = 3011;
constexpr int kTotalBarTag = 2999;

} // namespace

PasswordPDE::~PasswordPDE()
{
    _VERBOSE("Dealloc is called\n");
    if (context != nullptr) {
        myCleanup(context);
    }
    releaseViews();
}

PasswordPDE *PasswordPDE::initWithCallback(const std::shared_ptr<pde::HostCallback> &callback,
                                           const std::shared_ptr<pde::Bundle> &bundle)
{
    _PDEProlog(describe(this), "initWithCallback:(%@, %p) andBundle:(%@ %p)", describe(callback.get()),
               static_cast<const void *>(callback.get()), describe(bundle.get()),
               static_cast<const void *>(bundle.get()));
    thePDEName = QString();
    supportedOptions = nullptr;
    context = nullptr;
    hasInited = false;
    pdePluginCallbackObject = callback;
    pluginBundle = bundle;
    keepForEver(bundle);
    restoreValuesAndReturnError(nullptr);
    _PDEEpilog(describe(this), "initWithCallback:=id(self)");
    return this;
}

QString PasswordPDE::panelName()
{
    _PDEProlog(describe(this), "panelName:");
    if (thePDEName.isNull()) {
        const QString key = QStringLiteral("Tessarin Settings");
        thePDEName = pluginBundle ? pluginBundle->localizedString(key) : key;
    }
    _PDEEpilog(describe(this), "panelName:=NSString(%@)", describe(thePDEName));
    return thePDEName;
}

QString PasswordPDE::panelKind()
{
    _PDEProlog(describe(this), "panelKind:");
    QString kind = QString::fromLatin1(kPanelKind);
    _PDEEpilog(describe(this), "panelKind:=NSString(%@)", describe(kind));
    return kind;
}

std::shared_ptr<const QStringList> PasswordPDE::supportedPPDOptionKeys()
{
    _PDEProlog(describe(this), "supportedPPDOptionKeys:");
    if (supportedOptions) {
        return supportedOptions;
    }
    _VERBOSE("Create suppOptKeys\n");
    supportedOptions = MyGetSupportedOptions();
    _PDEEpilog(describe(this), "supportedPPDOptionKeys:=NSArray(%@)", describe(supportedOptions.get()));
    return supportedOptions;
}

QWidget *PasswordPDE::panelView()
{
    _PDEProlog(describe(this), "panelView:");
    if (pdeView.isNull()) {
        loadInterface();
        _VERBOSE("Enum Boxes - %p!!!\n", static_cast<const void *>(lastConsumptionBox.data()));
        enumLevelBoxes(lastConsumptionBox, kLastBarTag);
        enumLevelBoxes(totalConsumptionBox, kTotalBarTag);
    }
    _VERBOSE("Now init Controls\n");
    CocoaEmbedControls(context, TessarinPDEView, PDETabView);
    _PDEEpilog(describe(this), "panelView:=NSView(%@, %p)", describe(TessarinPDEView.data()),
               static_cast<const void *>(TessarinPDEView.data()));
    return TessarinPDEView;
}

void PasswordPDE::willShow()
{
    _PDEProlog(describe(this), "willShow:");
    _PDEEpilog(describe(this), "willShow:=void");
}

bool PasswordPDE::restoreValuesAndReturnError(QString *error)
{
    _PDEProlog(describe(this), "restoreValuesAndReturnError:(%p)", static_cast<const void *>(error));
    pde::HostCallback *callback = pdePluginCallbackObject.get();
    std::array<char, kPPDPathSize> path{};
    findPPDPath(callback, path.data());
    if (context == nullptr) {
        context = MyCreateCustomContext();
        if (context == nullptr) {
            return false;
        }
        enterPPDPathIntoContext(context, path.data());
        ppd_file_s *hostPPD = RunningOn105OrLater() && callback != nullptr ? callback->ppdFile() : nullptr;
        std::array<char, kPrinterNameSize> printerName{};
        findPrinterName(callback, printerName.data());
        _VERBOSE("PRINTERNAME:    '%S'\n", printerName.data());
        processPPDFile(context, hostPPD, path.data(), printerName.data(), callback, pluginBundle.get(),
                       RunningOn105OrLater() ? 0 : 1);
    }
    if (settingEvents != nullptr) {
        settingEvents->dropTyping();
    }
    MyRestoreValues(context);
    describeControls();
    _PDEEpilog(describe(this), "restoreValuesAndReturnError:=BOOL(YES)");
    return true;
}

bool PasswordPDE::saveValuesAndReturnError(QString *error)
{
    if (settingEvents != nullptr) { // first, as a slider that moves logs lines of its own
        settingEvents->finishTyping();
    }
    _PDEProlog(describe(this), "saveValuesAndReturnError:(%p)", static_cast<const void *>(error));
    if (context != nullptr) {
        MySyncTicketFromPane(context);
    }
    _PDEEpilog(describe(this), "saveValuesAndReturnError:=BOOL(YES)");
    return true;
}

std::optional<pde::Summary> PasswordPDE::summaryInfo()
{
    _PDEProlog(describe(this), "summaryInfo:");
    std::optional<pde::Summary> summary = MyGetSummaryText(context);
    _PDEEpilog(describe(this), "summaryInfo:=NSDictionary(%@, %p)", describe(summary),
               static_cast<const void *>(summary ? &*summary : nullptr));
    return summary;
}

void PasswordPDE::PPDOptionKeyValueDidChange(const QString &optionKey, const QString &choiceKey)
{
    if (context != nullptr) {
        MyPPDOptionHasChanged(context, makeString(optionKey), makeString(choiceKey));
        describeControls();
    }
}

void PasswordPDE::describeControls() const
{
    if (settingEvents != nullptr) {
        settingEvents->describeAll();
    }
}

void PasswordPDE::finalize()
{
    _VERBOSE("Dealloc is called\n");
    if (context != nullptr) {
        myCleanup(context);
    }
}

} // namespace tessarin
