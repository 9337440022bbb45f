// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "benchmarks/bench_support.h"

#include <QCoreApplication>
#include <QEvent>

#include <cstdio>
#include <cstdlib>

#include <unistd.h>

namespace tessarin::bench {

namespace {

class PaintWatch : public QObject {
public:
    bool painted = false;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        painted = painted || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

void showUntilPainted(QWidget &window)
{
    PaintWatch watch;
    window.installEventFilter(&watch);
    window.show();
    while (!watch.painted) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QCoreApplication::processEvents(); // the widgets within
}

void giveUp(const std::string &text)
{
    std::fprintf(stderr, "%s\n", text.c_str());
    std::exit(1);
}

TemporaryFile::TemporaryFile(const std::string &content) : path_("/tmp/tessarin-bench-XXXXXX")
{
    const int descriptor = mkstemp(path_.data());
    std::FILE *file = descriptor < 0 ? nullptr : fdopen(descriptor, "w");
    if (file == nullptr || std::fwrite(content.data(), 1, content.size(), file) != content.size() ||
        std::fclose(file) != 0) {
        giveUp(path_ + ": it cannot be written");
    }
}

TemporaryFile::~TemporaryFile()
{
    unlink(path_.c_str());
}

} // namespace tessarin::bench
