// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/accessible_views.h"

#include "platform/accessible_popup.h"
#include "platform/accessible_slider.h"
#include "platform/caption_label.h"
#include "platform/level_view.h"
#include "platform/mnemonics.h"

#include <QAccessibleWidget>
#include <QFrame>
#include <QLabel>
#include <QPointer>

#include <algorithm>
#include <functional>
#include <vector>

namespace tessarin {

namespace {

/// A level with the labels of its row: the channel's name at the left, its number at the right.
class AccessibleLevel : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit AccessibleLevel(LevelView *view) : QAccessibleWidget(view, QAccessible::ProgressBar), view_(view) {}

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface *>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override
    {
        QString level = QStringLiteral("%1%").arg(view_->level());
        switch (kind) {
        case QAccessible::Name:
            return rowText(true);
        case QAccessible::Value:
            return level;
        case QAccessible::Description:
            return QStringLiteral("%1 (%2)").arg(rowText(false), level);
        default:
            return QAccessibleWidget::text(kind);
        }
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        return state;
    }
    QVariant currentValue() const override { return std::clamp(view_->level(), 0, 100); }
    void setCurrentValue(const QVariant &) override {} // the printer's to say
    QVariant maximumValue() const override { return 100; }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }

private:
    QString rowText(bool left) const
    {
        const QRect bar = view_->geometry();
        for (const QObject *sibling : view_->parentWidget()->children()) {
            const auto *label = qobject_cast<const QLabel *>(sibling);
            if (label == nullptr || label->isHidden()) {
                continue;
            }
            const QRect place = label->geometry();
            const bool isInRow = place.top() <= bar.center().y() && bar.center().y() <= place.bottom();
            if (isInRow && (place.center().x() < bar.left()) == left) {
                return label->text();
            }
        }
        return {};
    }

    LevelView *view_;
};

/// A box of level views, named by its title.
class AccessibleLevelBox : public QAccessibleWidget {
public:
    explicit AccessibleLevelBox(QWidget *box) : QAccessibleWidget(box, QAccessible::Grouping) {}

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? captionOf(widget()) : QAccessibleWidget::text(kind);
    }
};

struct AccessibleRoot {
    QPointer<QWidget> view;
    TextOfPosition textOfPosition;
};

QAccessibleInterface *makeInterface(const QString &className, QObject *object);

/// The views of the panels that there are. Their factory is known to the toolkit as long as this library is loaded:
/// a host may unload it once the views are gone.
class AccessibleRoots {
public:
    AccessibleRoots() { QAccessible::installFactory(makeInterface); }
    ~AccessibleRoots() { QAccessible::removeFactory(makeInterface); }
    AccessibleRoots(const AccessibleRoots &) = delete;
    AccessibleRoots &operator=(const AccessibleRoots &) = delete;

    void add(QWidget *view, TextOfPosition textOfPosition)
    {
        std::erase_if(roots_, [view](const AccessibleRoot &root) { return !root.view || root.view == view; });
        roots_.push_back({.view = view, .textOfPosition = textOfPosition});
    }
    void setLoading(TextOfPosition textOfPosition) { loading_ = textOfPosition; }
    /// How the sliders around a view are read; null when it is of no panel.
    TextOfPosition textOfPositionFor(const QWidget *view) const
    {
        // What is being made has no window on the screen yet; the windows of others that are asked meanwhile may
        // have.
        if (loading_ != nullptr && !view->window()->testAttribute(Qt::WA_WState_Created)) {
            return loading_;
        }
        const auto holds = [view](const AccessibleRoot &root) {
            return root.view && (root.view == view || root.view->isAncestorOf(view));
        };
        const auto found = std::find_if(roots_.begin(), roots_.end(), holds);
        return found != roots_.end() ? found->textOfPosition : nullptr;
    }

private:
    std::vector<AccessibleRoot> roots_;
    TextOfPosition loading_ = nullptr; ///< of the panel that is being made; null: none is
};

AccessibleRoots &knownRoots()
{
    static AccessibleRoots roots;
    return roots;
}

bool holdsLevels(const QWidget *box)
{
    const QObjectList &children = box->children();
    return std::any_of(children.begin(), children.end(),
                       [](const QObject *child) { return dynamic_cast<const LevelView *>(child) != nullptr; });
}

QAccessibleInterface *makeInterface(const QString &className, QObject *object)
{
    if (object == nullptr || !object->isWidgetType()) {
        return nullptr;
    }
    auto *view = static_cast<QWidget *>(object);
    auto *slider = className == QLatin1String("QSlider") ? qobject_cast<QAbstractSlider *>(view) : nullptr;
    auto *popup = qobject_cast<PopUpButton *>(view);
    auto *level = dynamic_cast<LevelView *>(view);
    const bool isBox = view->metaObject() == &QFrame::staticMetaObject && holdsLevels(view);
    if (slider == nullptr && popup == nullptr && level == nullptr && !isBox) {
        return nullptr;
    }
    const TextOfPosition textOfPosition = knownRoots().textOfPositionFor(view);
    if (textOfPosition == nullptr) {
        return nullptr;
    }
    if (slider != nullptr) {
        return new AccessibleSlider(slider, textOfPosition);
    }
    if (popup != nullptr) {
        return new AccessiblePopUp(popup);
    }
    if (level != nullptr) {
        return new AccessibleLevel(level);
    }
    return new AccessibleLevelBox(view);
}

/// The first label that is asked for, beside the view or beside a view around it; null: there is none.
const QLabel *labelAround(const QWidget *view, const std::function<bool(const QLabel &)> &isWanted)
{
    for (const QWidget *around = view->parentWidget(); around != nullptr; around = around->parentWidget()) {
        for (const QObject *child : around->children()) {
            const auto *label = qobject_cast<const QLabel *>(child);
            if (label != nullptr && isWanted(*label)) {
                return label;
            }
        }
    }
    return nullptr;
}

QString withoutColon(QString caption)
{
    caption = caption.simplified();
    caption.truncate(endOfCaption(caption));
    return caption.trimmed();
}

} // namespace

AccessibleLoading::AccessibleLoading(TextOfPosition textOfPosition) : textOfPosition_(textOfPosition)
{
    knownRoots().setLoading(textOfPosition);
}

AccessibleLoading::~AccessibleLoading()
{
    knownRoots().setLoading(nullptr);
}

void AccessibleLoading::keep(QWidget *view)
{
    knownRoots().add(view, textOfPosition_);
}

void announceText(QWidget *view)
{
    if (view == nullptr || !QAccessible::isActive()) {
        return;
    }
    for (const QAccessible::Event change : {QAccessible::NameChanged, QAccessible::DescriptionChanged}) {
        QAccessibleEvent event(view, change);
        QAccessible::updateAccessibility(&event);
    }
}

QString captionOf(const QWidget *view)
{
    if (!view->accessibleName().isEmpty()) {
        return view->accessibleName();
    }
    const QLabel *label = labelAround(view, [view](const QLabel &near) { return near.buddy() == view; });
    return label != nullptr ? withoutColon(label->text()) : QString();
}

QString acceleratorOf(const QWidget *view)
{
    const QLabel *label = labelAround(view, [view](const QLabel &near) { return captionedControl(near) == view; });
    const auto *caption = qobject_cast<const CaptionLabel *>(label);
    return caption != nullptr ? mnemonicKeys(caption->mnemonic()).toString(QKeySequence::NativeText) : QString();
}

} // namespace tessarin
