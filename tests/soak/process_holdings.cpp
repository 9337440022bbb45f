// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/soak/process_holdings.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QWidget>

#include <algorithm>

namespace tessarin::test {

Names openDescriptors()
{
    const QDir folder(QStringLiteral("/proc/self/fd"));
    Names leads;
    for (const QString &name : folder.entryList(QDir::Files | QDir::System | QDir::NoDotAndDotDot)) {
        const QString target = QFile::symLinkTarget(folder.filePath(name));
        if (!target.endsWith(QLatin1String("/fd"))) { // the listing's own
            leads.push_back((name + QLatin1String(" -> ") + target).toStdString());
        }
    }
    return leads;
}

Names filesIn(const QString &folder)
{
    Names names;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        names.push_back(entries.next().toStdString());
    }
    std::sort(names.begin(), names.end());
    return names;
}

Names widgetsAlive()
{
    Names classes;
    for (const QWidget *widget : QApplication::allWidgets()) {
        classes.emplace_back(widget->metaObject()->className());
    }
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        classes.push_back(std::string("window ") + window->metaObject()->className());
    }
    std::sort(classes.begin(), classes.end());
    return classes;
}

} // namespace tessarin::test
