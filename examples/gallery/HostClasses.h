// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSlider>
#include <QtWidgets/QWidget>

/*
    Stand-ins for the widgets of the product's applications. The sheets know them by their class names alone, so nothing
    but the name and the base matters here.
*/

class CMainWindow : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
};

class CFilmsUniversalFilter : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
};

class COriginalSlider : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
};

class CSlider : public QSlider
{
    Q_OBJECT

public:
    using QSlider::QSlider;
};

class CGL5LinkButton : public QPushButton
{
    Q_OBJECT

public:
    using QPushButton::QPushButton;
};

class CGroupBox : public QGroupBox
{
    Q_OBJECT

public:
    using QGroupBox::QGroupBox;
};

class CComboBox : public QComboBox
{
    Q_OBJECT

public:
    using QComboBox::QComboBox;
};

class CActionableMenu : public QMenu
{
    Q_OBJECT

public:
    using QMenu::QMenu;
};

class CBalloonMenu : public QMenu
{
    Q_OBJECT

public:
    using QMenu::QMenu;
};

class CStandaloneBatchDlg : public QDialog
{
    Q_OBJECT

public:
    using QDialog::QDialog;
};

class CPluginBatchDlg : public QDialog
{
    Q_OBJECT

public:
    using QDialog::QDialog;
};

class CProgressDlg : public QDialog
{
    Q_OBJECT

public:
    using QDialog::QDialog;
};

class CFileSaveDialog : public QDialog
{
    Q_OBJECT

public:
    using QDialog::QDialog;
};

class CFileBrowserProgressDialog : public QDialog
{
    Q_OBJECT

public:
    using QDialog::QDialog;
};

class CCheckForUpdateDialog : public QDialog
{
    Q_OBJECT

public:
    using QDialog::QDialog;
};

class CPreferenciesDialog : public QDialog
{
    Q_OBJECT

public:
    using QDialog::QDialog;
};

class RewriteConfirmation : public QDialog
{
    Q_OBJECT

public:
    using QDialog::QDialog;
};
