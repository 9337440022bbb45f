// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/setting_events.h"

#include "controls/control_tables.h"
#include "controls/setting_help.h"
#include "controls/setting_tips.h"
#include "controls/typed_value.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>

#include <utility>

namespace tessarin {

namespace {

bool resets(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Delete || key.key() == Qt::Key_Backspace;
}

/// Whether the key begins a value.
bool types(const QKeyEvent &key)
{
    const QString text = key.text();
    return text.size() == 1 && (text[0].isDigit() || text[0] == QLatin1Char('+') || text[0] == QLatin1Char('-'));
}

bool isOurs(const QKeyEvent &key)
{
    const bool plain = (key.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) == Qt::NoModifier;
    return plain && (resets(key) || types(key) || key.key() == Qt::Key_F2);
}

/// The toolkit's own key asks only controls that hold their help ready.
bool asksForHelp(const QKeyEvent &key)
{
    return key.key() == Qt::Key_F1 && key.modifiers() == Qt::ShiftModifier;
}

void reset(const PanelContext &context, QSlider *slider, int number)
{
    if (const std::optional<int> position = defaultPosition(context, number)) {
        slider->setValue(*position); // tells of itself as a dragged slider does
    }
}

/// False once the program's statics go. The toolkit's list of observers does not outlive that.
bool toolkitIsThere = true;

/// To be called when the toolkit has its list: what is made later goes earlier.
void watchForTheEnd()
{
    struct End {
        End() = default;
        ~End() { toolkitIsThere = false; }
        End(const End &) = delete;
        End &operator=(const End &) = delete;
    };
    static const End end;
}

} // namespace

SettingEvents::SettingEvents(QObject *parent, std::function<const PanelContext *()> context)
    : QObject(parent), context_(std::move(context))
{
    isDescribing_ = QAccessible::isActive();
    QAccessible::installActivationObserver(this);
    watchForTheEnd();
}

SettingEvents::~SettingEvents()
{
    if (toolkitIsThere) { // a host's factory may be a static that goes last
        QAccessible::removeActivationObserver(this);
    }
}

void SettingEvents::watchView(QWidget *view)
{
    view_ = view;
    if (view != nullptr) {
        view->installEventFilter(this);
    }
}

void SettingEvents::watchControl(QWidget *control)
{
    control->installEventFilter(this);
    // After the panel has answered, which is connected before.
    if (auto *popup = qobject_cast<QComboBox *>(control)) {
        connect(popup, &QComboBox::activated, this, [this] { describeAll(); });
    } else if (auto *button = qobject_cast<QAbstractButton *>(control)) {
        connect(button, &QAbstractButton::toggled, this, [this] { describeAll(); });
    }
}

bool SettingEvents::eventFilter(QObject *watched, QEvent *event)
{
    bool answered = false;
    switch (event->type()) {
    case QEvent::ToolTip:
    case QEvent::QueryWhatsThis:
    case QEvent::WhatsThis:
        answered = watched == view_ && context_() != nullptr &&
                   answerHelp(*context_(), view_, *static_cast<const QHelpEvent *>(event));
        break;
    case QEvent::Show:
        if (watched == view_) {
            describeAll();
        }
        break;
    case QEvent::MouseButtonPress:
        swallowRelease_ = false;
        break;
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::ContextMenu:
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::EnabledChange:
    case QEvent::FocusIn:
        answered = controlEvent(static_cast<QWidget *>(watched), event);
        break;
    default:
        break;
    }
    return answered || QObject::eventFilter(watched, event);
}

bool SettingEvents::controlEvent(QWidget *control, QEvent *event)
{
    const PanelContext *context = context_();
    if (context == nullptr) {
        return false;
    }
    if (event->type() == QEvent::EnabledChange || event->type() == QEvent::FocusIn) {
        describe(control);
        return false;
    }
    if (event->type() == QEvent::KeyPress && asksForHelp(*static_cast<QKeyEvent *>(event))) {
        return helpFor(control);
    }
    const std::optional<Setting> setting = settingOf(*context, control);
    if (setting && setting->kind == SettingKind::Slider) {
        auto *slider = qobject_cast<QSlider *>(control);
        return slider != nullptr && slider->isEnabled() && sliderEvent(slider, setting->number, event);
    }
    int number = 0;
    if (event->type() == QEvent::MouseButtonDblClick) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (mouse->button() == Qt::LeftButton &&
            sliderOfText(control, mouse->position().toPoint(), number) != nullptr) {
            edit(number, {});
            return true;
        }
    } else if (event->type() == QEvent::ContextMenu) {
        const auto *menu = static_cast<QContextMenuEvent *>(event);
        if (QSlider *slider = sliderOfText(control, menu->pos(), number)) {
            showMenu(slider, number, menu->globalPos());
            return true;
        }
    }
    return false;
}

bool SettingEvents::helpFor(const QWidget *control) const
{
    if (control == view_ || view_.isNull() || !view_->isAncestorOf(control)) {
        return false;
    }
    const QPoint place = control->rect().center();
    return answerHelp(
        *context_(), view_,
        QHelpEvent(QEvent::WhatsThis, control->mapTo(view_.data(), place), control->mapToGlobal(place)));
}

bool SettingEvents::sliderEvent(QSlider *slider, int number, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonDblClick:
        swallowRelease_ = static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton;
        if (swallowRelease_) {
            reset(*context_(), slider, number);
        }
        return swallowRelease_;
    case QEvent::MouseButtonRelease:
        return std::exchange(swallowRelease_, false);
    case QEvent::ContextMenu:
        showMenu(slider, number, static_cast<QContextMenuEvent *>(event)->globalPos());
        return true;
    case QEvent::ShortcutOverride:
        if (isOurs(*static_cast<QKeyEvent *>(event))) {
            event->accept();
            return true;
        }
        return false;
    case QEvent::KeyPress:
        return sliderKey(slider, number, *static_cast<QKeyEvent *>(event));
    default:
        return false;
    }
}

bool SettingEvents::sliderKey(QSlider *slider, int number, const QKeyEvent &key)
{
    if (!isOurs(key)) {
        return false;
    }
    if (resets(key)) {
        reset(*context_(), slider, number);
    } else {
        edit(number, types(key) ? key.text() : QString());
    }
    return true;
}

QSlider *SettingEvents::sliderOfText(QWidget *view, const QPoint &place, int &number) const
{
    const PanelContext &context = *context_();
    const QWidget *child = view->childAt(place);
    const std::optional<Setting> setting = settingOf(context, child);
    if (!setting || setting->kind != SettingKind::Slider ||
        context.controls.sliderAuxControls[static_cast<std::size_t>(setting->number)] != child) {
        return nullptr;
    }
    number = setting->number;
    auto *slider = qobject_cast<QSlider *>(settingControl(context, *setting));
    return slider != nullptr && slider->isEnabled() ? slider : nullptr;
}

void SettingEvents::edit(int number, const QString &typed)
{
    const ControlsStruct &controls = context_()->controls;
    const auto place = static_cast<std::size_t>(number);
    editor_.open(qobject_cast<QSlider *>(controls.sliderControls[place]), controls.sliderAuxControls[place], number,
                 typed);
}

void SettingEvents::showMenu(QSlider *slider, int number, const QPoint &place)
{
    auto *menu = new QMenu(slider);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (const std::optional<int> position = defaultPosition(*context_(), number)) {
        menu->addAction(localizedSentence(kResetText).arg(valueText(number, *position)), this,
                        [this, slider, number] {
                            if (slider->isEnabled()) { // the host may have disabled it under the open menu
                                reset(*context_(), slider, number);
                            }
                        });
    }
    menu->addAction(localizedSentence(kTypeText), this, [this, number] { edit(number, {}); });
    menu->popup(place);
}

void SettingEvents::accessibilityActiveChanged(bool active)
{
    isDescribing_ = active;
    describeAll();
}

void SettingEvents::describe(QWidget *control) const
{
    if (!isDescribing_) {
        return;
    }
    const QString description = settingDescription(*context_(), control);
    // The view itself shows no setting: its description is the host's.
    if (!description.isEmpty() && control->accessibleDescription() != description) {
        control->setAccessibleDescription(description);
    }
}

void SettingEvents::describeAll() const
{
    const PanelContext *context = context_();
    if (context == nullptr || !isDescribing_) {
        return;
    }
    for (const SettingText &row : settingTexts) {
        if (QWidget *control = settingControl(*context, row.setting)) {
            describe(control);
        }
    }
}

} // namespace tessarin
