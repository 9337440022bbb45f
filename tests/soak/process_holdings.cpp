// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/soak/process_holdings.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QWidget>

#include <algorithm>

#include <malloc.h>
#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/allocator_interface.h>
#endif

namespace tessarin::test {

#if defined(__SANITIZE_ADDRESS__)

constexpr std::size_t kBlockHead = 0; // the sanitizer counts what was asked for

std::size_t heapInUse()
{
    return __sanitizer_get_current_allocated_bytes();
}

#else

constexpr std::size_t kBlockHead = sizeof(std::size_t);

std::size_t heapInUse()
{
    malloc_trim(0); // small blocks kept back for reuse count as used until they are merged
    return mallinfo2().uordblks + mallinfo2().hblkhd;
}

#endif

bool heapIsSanitized()
{
    return kBlockHead == 0;
}

std::size_t heapShare(const void *block)
{
    return malloc_usable_size(const_cast<void *>(block)) + kBlockHead;
}

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
