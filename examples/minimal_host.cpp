// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The least that a print dialog does with a panel: load it, show it, and take the options that it hands over.
//
//   minimal-host <folder of the bundle> <PPD file> [--save]

#include "pde/print_dialog_extension.h"

#include <QApplication>
#include <QDir>
#include <QPluginLoader>
#include <QTextStream>
#include <QVBoxLayout>
#include <QWidget>

#include <cups/ppd.h>

namespace pde = tessarin::pde;

/// One printer, which is also the session and what the panel is given of the dialog.
class Host final : public pde::HostCallback, public pde::PrintSession, public pde::Printer {
public:
    explicit Host(const QString &ppdPath) : path_(ppdPath), ppd_(ppdOpenFile(ppdPath.toLocal8Bit().constData()))
    {
        ppdMarkDefaults(ppd_); // a panel shows the choices that are marked
    }
    ~Host() override { ppdClose(ppd_); }

    pde::PrintSession *printSession() override { return this; }
    pde::Printer *PMPrinter() override { return this; }
    pde::Printer *currentPrinter() override { return this; }
    ppd_file_s *ppdFile() override { return ppd_; }
    std::optional<QString> identifier() const override { return QStringLiteral("photo"); }
    std::optional<QString> descriptionPath(const QString &type) const override
    {
        return type == QLatin1String(pde::kPPDDescriptionType) ? std::optional(path_) : std::nullopt;
    }

    /// The panel's wish. A host may refuse it by answering false.
    bool willChangePPDOptionKeyValue(const QString &key, const QString &choice) override
    {
        ppdMarkOption(ppd_, key.toUtf8().constData(), choice.toUtf8().constData());
        QTextStream(stdout) << key << '=' << choice << Qt::endl;
        return true;
    }

private:
    QString path_;
    ppd_file_t *ppd_; ///< owned
};

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 3) {
        return 2;
    }
    QPluginLoader loader(QDir(arguments.at(1)).absoluteFilePath(QStringLiteral("libTessarinPDE.so")));
    auto *entry = qobject_cast<pde::PlugInEntry *>(loader.instance());
    QString reason;
    const auto bundle = entry ? entry->openBundle(arguments.at(1), QString(), &reason) : nullptr;
    if (!bundle) {
        QTextStream(stderr) << (entry ? reason : loader.errorString()) << Qt::endl;
        return 1;
    }
    const auto plugIn = entry->createPlugIn();
    plugIn->initWithBundle(bundle);
    const auto host = std::make_shared<Host>(arguments.at(2));
    const auto panels = plugIn->PDEPanelsForType(QString::fromLatin1(pde::kPrinterModulePanelType), host);
    if (!panels || panels->empty()) {
        return 1;
    }
    const std::shared_ptr<pde::Panel> panel = panels->front();

    QWidget window;
    window.setWindowTitle(panel->panelName());
    if (QWidget *view = panel->panelView()) {
        (new QVBoxLayout(&window))->addWidget(view); // the window owns both
    }
    panel->willShow();
    window.show();
    if (!arguments.contains(QStringLiteral("--save"))) {
        QApplication::exec();
    }
    return panel->saveValuesAndReturnError(nullptr) ? 0 : 1; // hands every setting over
}
