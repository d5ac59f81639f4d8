// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "SenderLook.h"

QString senderLook()
{
    return QStringLiteral(R"(
#CrashSenderMainWindow, #centralWidget { background: #232323; }
QLabel { color: #e5e5e5; }
QLabel:disabled { color: #7d7d7d; }
QLabel#heading { color: #d9d9d9; font-size: 22px; }
QLabel#explanation, QLabel#archiveLabel { color: #999999; }
QLabel#statusLabel { color: #999999; }
QLabel#statusLabel[verdict="good"] { color: #9dc183; }
QLabel#statusLabel[verdict="bad"] { color: #f0a080; }

QTreeWidget, QPlainTextEdit, QLineEdit {
    background: #3a3a3a; color: #e5e5e5; border: 1px solid #1b1b1b; border-radius: 3px;
    selection-background-color: #aaaaaa; selection-color: #030303;
}
QLineEdit, QPlainTextEdit { padding: 4px; }
QTreeWidget:focus, QPlainTextEdit:focus, QLineEdit:focus { border-color: #a5694e; }
QLineEdit:disabled, QPlainTextEdit:disabled { background: #2c2c2c; color: #999999; }
QTreeWidget { show-decoration-selected: 1; outline: 0; }
QTreeWidget::item { border: 0; padding: 4px 6px; }
QTreeWidget::item:selected { background: #987947; color: #ffffff; }
QHeaderView::section {
    background: #2c2c2c; color: #999999; border: 0; border-bottom: 1px solid #1b1b1b; padding: 5px 6px;
}
QSplitter::handle { background: #232323; }

#buttonStrip { background: #1b1b1b; }
QPushButton {
    color: #ffffff; border: 1px solid #1b1b1b; border-top-color: #949494; border-left-color: #949494; border-radius: 5px;
    background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #616161, stop: 1 #5e5e5e);
    min-width: 84px; padding: 6px 14px; outline: 0;
}
QPushButton:hover, QPushButton:focus { border-color: #cccccc; }
QPushButton:pressed { background: #4b4b4b; }
QPushButton#sendButton {
    border-top-color: #ce7044; border-left-color: #ce7044;
    background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #a34012, stop: 1 #8d370f);
}
QPushButton#sendButton:hover, QPushButton#sendButton:focus { border-color: #f7a37e; }
QPushButton#sendButton:pressed { background: #7a300d; }
QPushButton:disabled, QPushButton#sendButton:disabled {
    background: #2c2c2c; color: #858585; border-color: #1b1b1b; border-top-color: #4b4b4b; border-left-color: #4b4b4b;
}

QProgressBar { background: #3a3a3a; border: 1px solid #1b1b1b; border-radius: 3px; max-height: 8px; min-height: 8px; }
QProgressBar::chunk { background: #a33f12; border-radius: 2px; }

QScrollBar { background: #383838; }
QScrollBar:vertical { width: 12px; }
QScrollBar:horizontal { height: 12px; }
QScrollBar::handle { background: #565656; border-radius: 4px; margin: 2px; min-height: 20px; min-width: 20px; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: none; }
QToolTip { background: #ecebda; color: #131212; border: 1px solid #000000; }
)");
}
