// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The least that a program with a word in its window does: it loads the fonts, which an empty window does not.

#include <QApplication>
#include <QLabel>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QLabel window(QStringLiteral("Print"));
    window.resize(800, 600);
    window.show();
    return QApplication::exec();
}
