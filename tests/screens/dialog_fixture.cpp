// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/screens/dialog_fixture.h"

#include "printing/text.h"
#include "settings/conflicts.h"
#include "settings/option_catalogue.h"

#include <QApplication>

#include <array>
#include <utility>

namespace tessarin::test {

using namespace host;

std::optional<pde::LogSink> WholeDialog::silence()
{
    return pde::LogSink([](std::string_view) {});
}

WholeDialog::WholeDialog(const std::string &language) : translation_(QString::fromStdString(language))
{
    Outcome<LoadedPlugIn> plugIn = loadPlugIn({.directory = QStringLiteral(TESSARIN_TEST_BUNDLE),
                                               .language = QString::fromStdString(language),
                                               .logSink = silence()});
    const PrinterChoice choice = ppdChoice(QStringLiteral(TESSARIN_SAMPLE_PPD));
    const Outcome<std::shared_ptr<HostPrinter>> printer = openLocalPrinter(choice);
    problem = plugIn.reason() + printer.reason();
    const QString features = TessarinPrint::tr("Printer Features");
    if (problem.isEmpty() && (language == "en") != (features == QLatin1String("Printer Features"))) {
        problem = QStringLiteral("the dialog does not speak %1").arg(QString::fromStdString(language));
    }
    if (!problem.isEmpty()) {
        return;
    }
    plugIn_ = plugIn.take();
    const QString source = QStringLiteral(TESSARIN_SOURCE_DIR);
    dialog = std::make_unique<PrintDialog>(DialogParts{
        .plugIn = plugIn_.plugIn.get(),
        .printer = printer.value(),
        .wanted = choice,
        .documentPaths = {source + QStringLiteral("/LICENSE"), source + QStringLiteral("/CHANGELOG.md")},
        .documentNames = {QStringLiteral("LICENSE"), QStringLiteral("CHANGELOG.md")},
        .makeDelivery = [](const HostPrinter & /*printer*/, bool /*separateJobs*/) {
            return std::make_unique<TicketDelivery>(QStringLiteral("/no such folder/ticket"));
        }});
    problem = dialog->panelProblem();
}

void WholeDialog::eachPage(const std::function<void(const std::string &name)> &visit)
{
    constexpr std::array pages{std::pair{Page::General, "General"}, std::pair{Page::Features, "Features"},
                               std::pair{Page::Summary, "Summary"}};
    for (const auto &[page, name] : pages) {
        dialog->pages()->showPage(page);
        QApplication::processEvents();
        visit(name);
    }
    dialog->pages()->showPage(Page::Panel);
    for (int tab = 0; tab < tabs()->count(); ++tab) {
        tabs()->setCurrentIndex(tab);
        if (tabs()->currentIndex() == tab) {
            QApplication::processEvents();
            visit("panel page " + std::to_string(tab));
        }
    }
}

void WholeDialog::changeSome()
{
    const JobSettings &settings = dialog->openPrinter()->settings();
    KeyValues changes;
    for (const QString &key : settings.optionKeys()) {
        for (const CatalogueChoice &choice : catalogueOption(settings.printer(), key).choices) {
            const bool isOther = choice.choice != settings.value(key);
            if (isOther && conflictsOf(settings.printer(), key, choice.choice).isEmpty()) {
                changes << KeyValue{.key = key, .value = choice.choice};
                break;
            }
        }
    }
    dialog->applyValues(changes);
    QApplication::processEvents();
}

} // namespace tessarin::test
