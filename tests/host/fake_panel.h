// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A small panel for tests of the dialog: it notes what is asked of it and saves three settings.

#ifndef TESSARIN_TESTS_HOST_FAKE_PANEL_H
#define TESSARIN_TESTS_HOST_FAKE_PANEL_H

#include "pde/print_dialog_extension.h"

#include <QLabel>
#include <QPointer>
#include <QTabWidget>

#include <memory>
#include <utility>

namespace tessarin::test {

/// The calls of one panel in their order. Outlives the panel.
using Calls = std::shared_ptr<QStringList>;

class FakePanel final : public pde::Panel {
public:
    FakePanel(std::shared_ptr<pde::HostCallback> host, Calls calls, bool withView)
        : host_(std::move(host)), calls_(std::move(calls)), withView_(withView)
    {}
    ~FakePanel() override
    {
        const bool ownsView = view_ && !view_->parentWidget();
        *calls_ << (ownsView ? QStringLiteral("dealloc with view") : QStringLiteral("dealloc"));
        if (ownsView) {
            delete view_.data();
        }
    }

    QString panelName() override { return note("panelName", QStringLiteral("Fake <b>Settings</b>")); }
    QString panelKind() override { return note("panelKind", QStringLiteral("org.tessarin.test.fake")); }
    std::shared_ptr<const QStringList> supportedPPDOptionKeys() override
    {
        note("supportedPPDOptionKeys", {});
        return std::make_shared<const QStringList>(QStringList{QStringLiteral("vornMediaType")});
    }
    QWidget *panelView() override
    {
        note("panelView", {});
        if (withView_ && !view_) {
            view_ = new QTabWidget;
            view_->addTab(new QLabel(QStringLiteral("first")), QStringLiteral("&General"));
            view_->addTab(new QLabel(QStringLiteral("second")), QStringLiteral("Ink / Usage"));
            view_->addTab(new QLabel(QStringLiteral("third")), QStringLiteral("Refused"));
            QTabWidget *tabs = view_;
            QObject::connect(tabs, &QTabWidget::currentChanged, tabs, [tabs](int page) {
                if (page == 2) {
                    tabs->setCurrentIndex(0);
                }
            });
        }
        return view_;
    }
    void willShow() override { note("willShow", {}); }
    bool shouldHide() const override { return true; }
    bool shouldPrint() const override { return true; }
    bool shouldShowHelp() const override { return true; }
    bool restoreValuesAndReturnError(QString *) override
    {
        note("restore", {});
        return true;
    }
    bool saveValuesAndReturnError(QString *) override
    {
        note("save", {});
        host_->willChangePPDOptionKeyValue(QStringLiteral("vornMediaType"), QStringLiteral("Photo6"));
        host_->willChangePPDOptionKeyValue(QStringLiteral("vornBrightness"), QStringLiteral("-7"));
        host_->willChangePPDOptionKeyValue(QStringLiteral("vornNoPrint"), QStringLiteral("0"));
        return true;
    }
    std::optional<pde::Summary> summaryInfo() override { return std::nullopt; }
    void PPDOptionKeyValueDidChange(const QString &, const QString &) override {}
    void finalize() override {}

private:
    QString note(const char *call, const QString &answer)
    {
        *calls_ << QLatin1String(call);
        return answer;
    }

    std::shared_ptr<pde::HostCallback> host_;
    Calls calls_;
    bool withView_;
    QPointer<QTabWidget> view_{};
};

/// What a fake factory answers.
enum class Offer { Panel, PanelWithoutView, EmptyArray, NullArray };

class FakePlugIn final : public pde::PlugIn {
public:
    FakePlugIn(Offer offer, Calls calls) : offer_(offer), calls_(std::move(calls)) {}

    bool initWithBundle(const std::shared_ptr<pde::Bundle> &) override
    {
        *calls_ << QStringLiteral("initWithBundle");
        return true;
    }
    std::shared_ptr<pde::PanelArray> PDEPanelsForType(const QString &type,
                                                      const std::shared_ptr<pde::HostCallback> &host) override
    {
        *calls_ << QStringLiteral("PDEPanelsForType ") + type;
        if (offer_ == Offer::NullArray) {
            return nullptr;
        }
        panels_ = std::make_shared<pde::PanelArray>();
        if (offer_ != Offer::EmptyArray) {
            panels_->push_back(std::make_shared<FakePanel>(host, calls_, offer_ == Offer::Panel));
        }
        return panels_;
    }

private:
    Offer offer_;
    Calls calls_;
    std::shared_ptr<pde::PanelArray> panels_{}; ///< kept as a real factory keeps its panels
};

} // namespace tessarin::test

#endif
