// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/soak/process_holdings.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QWidget>

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

QStringList openDescriptors()
{
    const QDir folder(QStringLiteral("/proc/self/fd"));
    QStringList leads;
    for (const QString &name : folder.entryList(QDir::Files | QDir::System | QDir::NoDotAndDotDot)) {
        const QString target = QFile::symLinkTarget(folder.filePath(name));
        if (!target.endsWith(QLatin1String("/fd"))) { // the listing's own
            leads << name + QLatin1String(" -> ") + target;
        }
    }
    return leads;
}

QStringList filesIn(const QString &folder)
{
    QStringList names;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        names << entries.next();
    }
    names.sort();
    return names;
}

QStringList widgetsAlive()
{
    QStringList classes;
    for (const QWidget *widget : QApplication::allWidgets()) {
        classes << QLatin1String(widget->metaObject()->className());
    }
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        classes << QLatin1String("window ") + QLatin1String(window->metaObject()->className());
    }
    classes.sort();
    return classes;
}

} // namespace tessarin::test
