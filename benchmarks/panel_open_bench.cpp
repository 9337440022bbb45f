// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Opening the panel, from the factory to its first painted picture, against what it cannot do without, and against
// the toolkit's own print dialog. And the memory that a panel takes besides its widgets.

#include "benchmarks/bench_support.h"
#include "platform/log_sink.h"
#include "tests/support/panel_session.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinter>
#include <QUiLoader>
#include <QVBoxLayout>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

#include <malloc.h>

using namespace tessarin;

namespace {

void showAlone(QWidget &view)
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window); // the window's
    layout->addWidget(&view);
    bench::showUntilPainted(window);
    layout->removeWidget(&view);
    view.setParent(nullptr);
}

void panelOpen(benchmark::State &state)
{
    const auto bundle = test::buildBundle();
    for ([[maybe_unused]] auto round : state) {
        test::PanelSession session(test::samplePPD(), "sample", bundle);
        showAlone(*session.open());
    }
}

void panelOpenSyslog(benchmark::State &state)
{
    setLogSink({});
    panelOpen(state);
    setLogSink([](std::string_view) {});
}

void panelFloor(benchmark::State &state)
{
    const QString path = test::buildBundle()->interfacePath(QStringLiteral("TessarinPDE_C"));
    for ([[maybe_unused]] auto round : state) {
        const test::RecordingHost host(test::samplePPD());
        QFile file(path);
        QUiLoader loader;
        loader.clearPluginPaths();
        loader.setWorkingDirectory(QFileInfo(path).dir());
        const std::unique_ptr<QWidget> view(file.open(QIODevice::ReadOnly) ? loader.load(&file) : nullptr);
        if (!view) {
            bench::giveUp(path.toStdString() + ": " + loader.errorString().toStdString());
        }
        view->setFixedSize(view->size()); // it has no layout: without a size nothing would be painted
        showAlone(*view);
    }
}

void qtPrintDialog(benchmark::State &state)
{
    for ([[maybe_unused]] auto round : state) {
        QPrinter printer;
        QPrintDialog dialog(&printer);
        bench::showUntilPainted(dialog);
    }
}

std::size_t heapInUse()
{
    return mallinfo2().uordblks;
}

void panelHeap(benchmark::State &state)
{
    const auto bundle = test::buildBundle();
    const test::PanelSession warm(test::samplePPD(), "sample", bundle);
    std::vector<std::size_t> bytes;
    for ([[maybe_unused]] auto round : state) {
        const auto host = std::make_shared<test::RecordingHost>(test::samplePPD());
        const auto plugIn = std::make_unique<TessarinPDEPlugIn>();
        plugIn->initWithBundle(bundle);
        const std::size_t before = heapInUse();
        const auto panels = plugIn->PDEPanelsForType(QString::fromLatin1(pde::kPrinterModulePanelType), host);
        QWidget *view = panels->front()->panelView();
        auto *window = new QWidget;
        view->setParent(window);
        delete window; // the widgets are the window's then
        malloc_trim(0);
        bytes.push_back(heapInUse() - std::min(before, heapInUse()));
    }
    // Not the greatest: in one round or another the toolkit fills a cache of its own.
    const auto middle = bytes.begin() + static_cast<std::ptrdiff_t>(bytes.size() / 2);
    std::nth_element(bytes.begin(), middle, bytes.end());
    state.counters["KiB"] = static_cast<double>(*middle) / 1024;
}

} // namespace

BENCHMARK(panelOpen)->Name("panel_open")->Unit(benchmark::kMillisecond);
BENCHMARK(panelOpenSyslog)->Name("panel_open_syslog")->Unit(benchmark::kMillisecond);
BENCHMARK(panelFloor)->Name("panel_floor")->Unit(benchmark::kMillisecond);
BENCHMARK(qtPrintDialog)->Name("qt_print_dialog")->Unit(benchmark::kMillisecond);
BENCHMARK(panelHeap)->Name("panel_heap_kib")->Iterations(20);
