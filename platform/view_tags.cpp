// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/view_tags.h"

#include "platform/level_view.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QComboBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QVariant>

namespace tessarin {

namespace {

QHash<qintptr, QPointer<QWidget>> &knownHandles()
{
    static QHash<qintptr, QPointer<QWidget>> handles;
    return handles;
}

void dropDeadHandles(QHash<qintptr, QPointer<QWidget>> &handles)
{
    handles.removeIf([](const auto &entry) { return entry.value().isNull(); });
}

} // namespace

bool isControl(const QWidget *view)
{
    return qobject_cast<const QComboBox *>(view) != nullptr ||
           qobject_cast<const QAbstractSlider *>(view) != nullptr ||
           qobject_cast<const QAbstractButton *>(view) != nullptr ||
           qobject_cast<const QLabel *>(view) != nullptr || qobject_cast<const QLineEdit *>(view) != nullptr;
}

qintptr tagOf(const QWidget *view)
{
    if (view == nullptr) {
        return 0;
    }
    if (const auto *level = dynamic_cast<const LevelView *>(view)) {
        return level->tag();
    }
    const QVariant value = view->property(kTagProperty);
    if (value.isValid()) {
        return static_cast<qintptr>(value.toLongLong());
    }
    return isControl(view) ? 0 : -1;
}

void setTagOf(QWidget *view, qintptr tag)
{
    if (view == nullptr) {
        return;
    }
    if (auto *level = dynamic_cast<LevelView *>(view)) {
        level->setTag(tag);
    } else {
        view->setProperty(kTagProperty, static_cast<qlonglong>(tag));
    }
}

QWidget *viewWithTag(QWidget *root, qintptr tag)
{
    if (root == nullptr || tagOf(root) == tag) {
        return root;
    }
    for (QObject *child : root->children()) {
        if (child->isWidgetType()) {
            if (QWidget *found = viewWithTag(static_cast<QWidget *>(child), tag)) {
                return found;
            }
        }
    }
    return nullptr;
}

qintptr handleOf(QWidget *view)
{
    if (view == nullptr) {
        return 0;
    }
    const auto handle = reinterpret_cast<qintptr>(view);
    auto &handles = knownHandles();
    QPointer<QWidget> &entry = handles[handle];
    if (entry.isNull()) {
        entry = view;
        if (handles.size() % 64 == 0) { // views come and go with their panels
            dropDeadHandles(handles);
        }
    }
    return handle;
}

QWidget *viewForHandle(qintptr handle)
{
    return knownHandles().value(handle).data();
}

} // namespace tessarin
