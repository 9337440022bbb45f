// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/screens/text_fit.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QBitmap>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <QTabBar>
#include <QTreeView>

#include <algorithm>

namespace tessarin::test {

namespace {

class Fitter {
public:
    void look(QWidget *view);
    TextFit result{};

private:
    void compare(const QString &text, const QSize &needed, const QSize &room);
    void compareLabel(const QLabel &label);
    void compareButton(const QAbstractButton &button);
    void comparePopUp(const QComboBox &popup);
    void compareLine(const QLineEdit &line);
    void compareTabs(const QTabBar &bar);
    void compareGroup(const QGroupBox &group);
    void compareList(const QListWidget &list);
    void compareTree(const QTreeView &tree);
    void compareHeader(const QHeaderView &header);
    void lookForOverlaps(const QWidget *view);
};

QString nameOf(const QWidget *view)
{
    const auto *label = qobject_cast<const QLabel *>(view);
    const auto *button = qobject_cast<const QAbstractButton *>(view);
    const QString text = label != nullptr ? label->text() : button != nullptr ? button->text() : QString();
    return QStringLiteral("%1 %2 “%3”")
        .arg(QLatin1String(view->metaObject()->className()), view->objectName(), text);
}

QString shown(const QSize &size)
{
    return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

QString rectText(const QRect &place)
{
    return QStringLiteral("(%1, %2) %3").arg(place.x()).arg(place.y()).arg(shown(place.size()));
}

void Fitter::compare(const QString &text, const QSize &needed, const QSize &room)
{
    ++result.texts;
    if (needed.width() > room.width() || needed.height() > room.height()) {
        result.faults << QStringLiteral("“%1” needs %2, has %3").arg(text, shown(needed), shown(room));
    }
}

void Fitter::compareLabel(const QLabel &label)
{
    if (label.text().isEmpty()) {
        return;
    }
    if (label.inherits("tessarin::host::LineLabel")) { // shows what there is room for, and the rest when pointed at
        compare(label.text(), label.minimumSizeHint(), label.size());
        return;
    }
    if (!label.wordWrap()) {
        compare(label.text(), label.sizeHint(), label.size());
        return;
    }
    const QRect room(0, 0, label.width(), QWIDGETSIZE_MAX);
    const int widest = label.fontMetrics().boundingRect(room, Qt::TextWordWrap, label.text()).width();
    compare(label.text(), {widest, label.heightForWidth(label.width())}, label.size());
}

void Fitter::compareButton(const QAbstractButton &button)
{
    if (!button.text().isEmpty()) {
        compare(button.text(), {button.sizeHint().width(), button.fontMetrics().height()}, button.size());
    }
}

void Fitter::comparePopUp(const QComboBox &popup)
{
    QStyleOptionComboBox option;
    option.initFrom(&popup);
    option.editable = popup.isEditable();
    const QSize room =
        popup.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &popup).size();
    for (int item = 0; item < popup.count(); ++item) {
        const QString text = popup.itemText(item);
        if (!text.isEmpty()) {
            compare(text, {popup.fontMetrics().horizontalAdvance(text), popup.fontMetrics().height()}, room);
        }
    }
}

void Fitter::compareLine(const QLineEdit &line)
{
    const QString text = line.text().isEmpty() ? line.placeholderText() : line.text();
    if (text.isEmpty()) {
        return;
    }
    QStyleOptionFrame option;
    option.initFrom(&line);
    option.lineWidth = line.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &line);
    QRect room = line.style()->subElementRect(QStyle::SE_LineEditContents, &option, &line);
    room = room.marginsRemoved(line.textMargins());
    compare(text, {line.fontMetrics().horizontalAdvance(text), line.fontMetrics().height()}, room.size());
}

void Fitter::compareTabs(const QTabBar &bar)
{
    int all = 0;
    for (int tab = 0; tab < bar.count(); ++tab) {
        const QRect place = bar.tabRect(tab);
        compare(bar.tabText(tab), bar.fontMetrics().size(Qt::TextShowMnemonic, bar.tabText(tab)), place.size());
        all += place.width();
    }
    compare(bar.tabText(0) + QStringLiteral(" … (all tabs)"), {all, 0}, bar.parentWidget()->size());
}

void Fitter::compareGroup(const QGroupBox &group)
{
    if (!group.title().isEmpty()) {
        compare(group.title(), group.fontMetrics().size(Qt::TextShowMnemonic, group.title()), group.size());
    }
}

void Fitter::compareList(const QListWidget &list)
{
    for (int row = 0; row < list.count(); ++row) {
        const QRect place = list.visualItemRect(list.item(row)).intersected(list.viewport()->rect());
        const QFontMetrics metrics = list.fontMetrics();
        compare(list.item(row)->text(), {metrics.horizontalAdvance(list.item(row)->text()), metrics.height()},
                place.size());
    }
}

/// All rows and columns, those below the visible ones included. A column that is as wide as its texts but not
/// wholly in sight cuts nothing, where there is a bar to scroll with.
void Fitter::compareTree(const QTreeView &tree)
{
    const int widest = tree.viewport()->width();
    for (QModelIndex row = tree.model()->index(0, 0); row.isValid(); row = tree.indexBelow(row)) {
        const bool isSpanned = tree.isFirstColumnSpanned(row.row(), row.parent());
        for (int column = 0; column < (isSpanned ? 1 : tree.model()->columnCount()); ++column) {
            const QModelIndex index = row.siblingAtColumn(column);
            const QString text = index.data().toString();
            if (text.isEmpty()) {
                continue;
            }
            const QRect cell = tree.visualRect(index);
            const QFontMetrics metrics(index.data(Qt::FontRole).isValid() ? index.data(Qt::FontRole).value<QFont>()
                                                                          : tree.font());
            const QSize needed(tree.sizeHintForIndex(index).width(), metrics.height());
            compare(text, needed, {isSpanned ? widest : cell.width(), cell.height()});
            if (cell.left() + needed.width() > widest) {
                result.aside << text;
            }
        }
    }
    const int hidden = tree.header()->length() - widest;
    if (hidden > 0 && tree.horizontalScrollBar()->maximum() == 0) {
        result.faults << QStringLiteral("%1 pixels of %2 cannot be scrolled to").arg(hidden).arg(nameOf(&tree));
    }
}

void Fitter::compareHeader(const QHeaderView &header)
{
    for (int section = 0; section < header.count(); ++section) {
        const QString text = header.model()->headerData(section, header.orientation()).toString();
        compare(text, {header.fontMetrics().horizontalAdvance(text), header.fontMetrics().height()},
                {header.sectionSize(section), header.height()});
    }
}

/// The part of a view's place that it draws on: of a label's, the strokes of its text.
QRect drawnPlace(QWidget *view)
{
    if (qobject_cast<QLabel *>(view) == nullptr) {
        return view->geometry();
    }
    QImage image(view->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    view->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return QRegion(QBitmap::fromImage(image.createAlphaMask(Qt::AvoidDither)))
        .boundingRect()
        .translated(view->pos());
}

bool overlap(QWidget *one, QWidget *other)
{
    return one->geometry().intersects(other->geometry()) && drawnPlace(one).intersects(drawnPlace(other));
}

/// What scrolls may be larger than its frame.
bool mayStickOut(const QWidget *view)
{
    const auto *area = qobject_cast<const QAbstractScrollArea *>(view->parentWidget());
    return area != nullptr && area->viewport() == view;
}

void Fitter::lookForOverlaps(const QWidget *view)
{
    QList<QWidget *> children;
    for (QWidget *child : view->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        if (child->isVisible() && !child->isWindow() && !child->geometry().isEmpty()) {
            children << child;
        }
    }
    for (qsizetype one = 0; one < children.size(); ++one) {
        if (!mayStickOut(view) && !view->rect().contains(children[one]->geometry())) {
            result.faults << QStringLiteral("%1 at %2 sticks out of %3, %4")
                                 .arg(nameOf(children[one]), rectText(children[one]->geometry()), nameOf(view),
                                      shown(view->size()));
        }
        for (qsizetype other = one + 1; other < children.size(); ++other) {
            if (overlap(children[one], children[other])) {
                result.faults << QStringLiteral("%1 at %2 and %3 at %4 overlap")
                                     .arg(nameOf(children[one]), rectText(children[one]->geometry()),
                                          nameOf(children[other]), rectText(children[other]->geometry()));
            }
        }
    }
}

void Fitter::look(QWidget *view)
{
    if (!view->isVisible()) {
        return;
    }
    if (const auto *tree = qobject_cast<QTreeView *>(view)) {
        compareTree(*tree);
    }
    bool isWhole = true; // what it consists of is the toolkit's
    if (const auto *label = qobject_cast<QLabel *>(view)) {
        compareLabel(*label);
    } else if (const auto *button = qobject_cast<QAbstractButton *>(view)) {
        compareButton(*button);
    } else if (const auto *popup = qobject_cast<QComboBox *>(view)) {
        comparePopUp(*popup);
    } else if (const auto *line = qobject_cast<QLineEdit *>(view)) {
        compareLine(*line);
    } else if (const auto *bar = qobject_cast<QTabBar *>(view)) {
        compareTabs(*bar);
    } else if (const auto *list = qobject_cast<QListWidget *>(view)) {
        compareList(*list);
    } else if (const auto *header = qobject_cast<QHeaderView *>(view)) {
        compareHeader(*header);
    } else {
        isWhole = false;
        if (const auto *group = qobject_cast<QGroupBox *>(view)) {
            compareGroup(*group);
        }
    }
    if (isWhole) {
        return;
    }
    const bool isToolkits = qobject_cast<QAbstractScrollArea *>(view) != nullptr || view->inherits("QTabWidget") ||
                            view->inherits("QAbstractSpinBox");
    if (!isToolkits) {
        lookForOverlaps(view);
    }
    for (QWidget *child : view->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        if (!child->isWindow()) {
            look(child);
        }
    }
}

} // namespace

TextFit textFit(QWidget *view)
{
    Fitter fitter;
    fitter.look(view);
    return fitter.result;
}

} // namespace tessarin::test
