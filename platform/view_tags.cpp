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

#include <algorithm>

namespace tessarin {

namespace {

QHash<qintptr, QPointer<QWidget>> &knownHandles()
{
    static QHash<qintptr, QPointer<QWidget>> handles;
    return handles;
}

/// What is known of a view's tag. The toolkit finds a property by comparing names through all classes, and a panel
/// asks for tags some thousand times while it opens.
struct KnownTag {
    QPointer<const QWidget> view;     ///< another view may come to lie at the address of one that has gone
    const LevelView *level = nullptr; ///< keeps its tag itself
    qintptr tag = 0;
};

/// The tags by view. Entries of views that have gone are dropped whenever their number has doubled.
class KnownTags {
public:
    KnownTag &of(const QWidget *view);
    void readAgain(const QWidget *view);

private:
    static KnownTag read(const QWidget *view);

    QHash<const QWidget *, KnownTag> tags_;
    qsizetype limit_ = 256;
};

KnownTag KnownTags::read(const QWidget *view)
{
    KnownTag known{.view = view, .level = dynamic_cast<const LevelView *>(view), .tag = isControl(view) ? 0 : -1};
    const QVariant value = view->property(kTagProperty);
    if (value.isValid()) {
        known.tag = static_cast<qintptr>(value.toLongLong());
    }
    return known;
}

KnownTag &KnownTags::of(const QWidget *view)
{
    if (tags_.size() >= limit_) {
        tags_.removeIf([](const auto &entry) { return entry.value().view.isNull(); });
        limit_ = std::max<qsizetype>(256, 2 * tags_.size());
    }
    KnownTag &known = tags_[view];
    if (known.view.isNull()) {
        known = read(view);
    }
    return known;
}

void KnownTags::readAgain(const QWidget *view)
{
    of(view) = read(view);
}

KnownTags &knownTags()
{
    static KnownTags tags;
    return tags;
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
    const KnownTag &known = knownTags().of(view);
    return known.level != nullptr ? known.level->tag() : known.tag;
}

void setTagOf(QWidget *view, qintptr tag)
{
    if (view == nullptr) {
        return;
    }
    KnownTag &known = knownTags().of(view);
    if (known.level != nullptr) {
        dynamic_cast<LevelView *>(view)->setTag(tag);
    } else {
        known.tag = tag;
    }
}

void readTagsAgain(const QWidget *root)
{
    knownTags().readAgain(root);
    for (const QObject *child : root->children()) {
        if (child->isWidgetType()) {
            readTagsAgain(static_cast<const QWidget *>(child));
        }
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
