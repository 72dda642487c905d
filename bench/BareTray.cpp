// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
// The least that a tray program of Qt Widgets can be: the floor to measure the program against.
#include <QApplication>
#include <QIcon>
#include <QPixmap>
#include <QSystemTrayIcon>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QPixmap square(22, 22);
    square.fill(Qt::gray);
    QSystemTrayIcon icon{QIcon(square)};
    icon.show();
    return QApplication::exec();
}
