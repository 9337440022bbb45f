// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "hosting/panel_tab.h"

#include "host/installation.h"
#include "host/open_printer.h"
#include "host/panel_area.h"
#include "host/plugin_loader.h"
#include "printing/host_printer.h"
#include "printing/text.h"

#include <QPointer>
#include <QPrintDialog>
#include <QVBoxLayout>

namespace tessarin {

using host::Outcome;

namespace {

/// What the dialog gets as its tab, and deletes as its own. The panel's view only visits it: the panel clears its
/// controls away itself, and must find them whole, whichever goes first. On a small screen the view scrolls.
class Holder final : public QWidget {
public:
    explicit Holder(QWidget *view) : area_(new host::PanelArea(this))
    {
        auto *column = new QVBoxLayout(this);
        column->addWidget(area_);
        area_->showView(view);
    }
    ~Holder() override { area_->releaseView(); }
    Holder(const Holder &) = delete;
    Holder &operator=(const Holder &) = delete;

private:
    host::PanelArea *area_; ///< owned by this widget
};

Outcome<std::shared_ptr<host::HostPrinter>> openPrinter(const PanelTabRequest &request)
{
    return request.queue.isEmpty() ? host::HostPrinter::fromPpdFile(request.ppdFile)
                                   : host::HostPrinter::fromQueue(host::QueueName::fromText(request.queue));
}

} // namespace

struct PanelTab::Parts {
    host::LoadedPlugIn plugIn{}; ///< outlives the panel below
    std::shared_ptr<host::OpenPrinter> printer{};
    QPointer<Holder> holder{}; ///< the dialog's
    QString problem{};
};

PanelTab::PanelTab(std::unique_ptr<Parts> parts) : parts_(std::move(parts)) {}

PanelTab::~PanelTab()
{
    delete parts_->holder;
}

std::unique_ptr<PanelTab> PanelTab::addTo(QPrintDialog &dialog, const PanelTabRequest &request,
                                          const QList<QWidget *> &others)
{
    std::unique_ptr<PanelTab> tab(new PanelTab(std::make_unique<Parts>()));
    Parts &parts = *tab->parts_;
    Outcome<std::shared_ptr<host::HostPrinter>> printer = openPrinter(request);
    if (!printer.ok()) {
        parts.problem = printer.reason();
        return tab;
    }
    Outcome<host::LoadedPlugIn> plugIn =
        host::loadPlugIn({.directory = host::bundleDirectory(request.bundle), .language = request.language});
    if (!plugIn.ok()) {
        parts.problem = plugIn.reason();
        return tab;
    }
    parts.plugIn = plugIn.take();
    parts.printer = std::make_shared<host::OpenPrinter>(printer.take(), parts.plugIn.plugIn.get(), QString());
    parts.problem = parts.printer->panel().problem;
    if (QWidget *view = parts.printer->panel().view) {
        parts.holder = new Holder(view);
        parts.holder->setWindowTitle(parts.printer->panel().name); // becomes the tab's title
        dialog.setOptionTabs(others + QList<QWidget *>{parts.holder});
    }
    return tab;
}

bool PanelTab::isOpen() const
{
    return parts_->printer && parts_->printer->panel().view;
}

const QString &PanelTab::problem() const
{
    return parts_->problem;
}

QString PanelTab::title() const
{
    return parts_->printer ? parts_->printer->panel().name : QString();
}

QList<std::pair<QString, QString>> PanelTab::options() const
{
    QList<std::pair<QString, QString>> options;
    if (parts_->printer) {
        parts_->printer->savePanel();
        const QStringList keys = parts_->printer->panelKeys();
        for (const host::TicketEntry &entry : parts_->printer->settings().ticket().entries()) {
            if (keys.contains(entry.key)) {
                options.append({entry.key, entry.value});
            }
        }
    }
    return options;
}

bool PanelTab::setOption(const QString &key, const QString &value)
{
    return parts_->printer && parts_->printer->apply({{.key = key, .value = value}}, host::ChangeOrigin::Host);
}

} // namespace tessarin
