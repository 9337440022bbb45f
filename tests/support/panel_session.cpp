// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/panel_session.h"

#include "platform/view_tags.h"

namespace tessarin::test {

std::shared_ptr<DirectoryBundle> buildBundle(const QString &language)
{
    QString reason;
    std::shared_ptr<DirectoryBundle> bundle =
        DirectoryBundle::open(QStringLiteral(TESSARIN_TEST_BUNDLE), language, &reason);
    if (!bundle) {
        qFatal("no bundle: %s", qPrintable(reason));
    }
    return bundle;
}

PanelSession::PanelSession(const std::string &ppdPath, const std::string &identifier,
                           const std::shared_ptr<pde::Bundle> &givenBundle)
    : host(std::make_shared<RecordingHost>(ppdPath, identifier)), bundle(givenBundle),
      plugIn(std::make_unique<TessarinPDEPlugIn>())
{
    plugIn->initWithBundle(bundle);
    panels = plugIn->PDEPanelsForType(QString::fromLatin1(pde::kPrinterModulePanelType), host);
    panel = dynamic_cast<PasswordPDE *>(panels->front().get());
}

PanelSession::~PanelSession()
{
    plugIn.reset();
    panels.reset();
}

QWidget *PanelSession::open()
{
    return panel->panelView();
}

QComboBox *PanelSession::popup(int row) const
{
    return qobject_cast<QComboBox *>(context()->controls.popupControls[static_cast<std::size_t>(row)].data());
}

QSlider *PanelSession::slider(int number) const
{
    return qobject_cast<QSlider *>(context()->controls.sliderControls[static_cast<std::size_t>(number)].data());
}

QLabel *PanelSession::sliderText(int number) const
{
    return qobject_cast<QLabel *>(context()->controls.sliderAuxControls[static_cast<std::size_t>(number)].data());
}

QCheckBox *PanelSession::checkBox(int id) const
{
    return qobject_cast<QCheckBox *>(viewWithTag(context()->controls.tabView, id));
}

} // namespace tessarin::test
