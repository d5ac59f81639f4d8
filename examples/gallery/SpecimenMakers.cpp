// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "SpecimenMakers.h"

#include "HostClasses.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QGraphicsView>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSizeGrip>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeView>
#include <QtWidgets/QVBoxLayout>

#include <array>

namespace {

constexpr QSize leastSize(24, 24);
constexpr int longSide = 160;

/*! A short text that Qt translates itself. */
QString word(int number)
{
    static const std::array words{"Save", "Cancel", "Close", "Apply", "Reset", "Discard", "Open", "Help"};
    const char *source = words.at(std::size_t(number) % words.size());
    return QCoreApplication::translate("QPlatformTheme", source).remove(u'&');
}

QStandardItemModel *newModel(QObject *parent)
{
    auto *model = new QStandardItemModel(parent);
    model->setHorizontalHeaderLabels({word(0), word(1)});
    for (int row = 0; row < 3; ++row) {
        auto *item = new QStandardItem(word(row));
        item->setCheckable(row > 0);
        item->setCheckState(row == 1 ? Qt::Checked : Qt::Unchecked);
        item->appendRow(new QStandardItem(word(row + 3)));
        model->appendRow({item, new QStandardItem(word(row + 3))});
    }
    return model;
}

template <typename View>
View *newView()
{
    auto *view = new View;
    view->setFixedSize(viewSize);
    view->setModel(newModel(view));
    view->setCurrentIndex(view->model()->index(1, 0));
    return view;
}

QTreeView *newTree()
{
    auto *tree = newView<QTreeView>();
    tree->expand(tree->model()->index(0, 0));
    return tree;
}

template <typename Menu>
Menu *newMenu()
{
    auto *menu = new Menu;
    menu->setWindowFlags(Qt::Widget); // stays where it is
    menu->setAttribute(Qt::WA_StyledBackground); // which its window would have drawn
    menu->addAction(word(0))->setShortcut(QKeySequence::Save);
    QAction *checked = menu->addAction(word(3));
    checked->setCheckable(true);
    checked->setChecked(true);
    menu->addSeparator();
    menu->addMenu(word(6))->addAction(word(7));
    menu->addAction(word(4))->setEnabled(false);
    menu->setActiveAction(checked);
    return menu;
}

QMenuBar *newMenuBar()
{
    auto *bar = new QMenuBar;
    for (int i = 0; i < 3; ++i) {
        bar->addMenu(word(i));
    }
    return bar;
}

QToolBar *newToolBar()
{
    auto *bar = new QToolBar;
    bar->addAction(word(0));
    bar->addSeparator();
    bar->addWidget(new QLabel(word(1)));
    return bar;
}

template <typename Combo>
Combo *newCombo()
{
    auto *combo = new Combo;
    combo->addItems({word(0), word(1), word(2)});
    return combo;
}

template <typename Box>
Box *newGroup()
{
    auto *box = new Box(word(0));
    box->setCheckable(true);
    auto *layout = new QVBoxLayout(box);
    layout->addWidget(new QLabel(word(1)));
    layout->addWidget(new QCheckBox(word(2)));
    return box;
}

template <typename Edit>
Edit *newText()
{
    auto *edit = new Edit;
    edit->setFixedSize(viewSize);
    QString text = word(0);
    for (int i = 1; i < 8; ++i) {
        text += u'\n' + word(i);
    }
    edit->setPlainText(text);
    QTextCursor cursor = edit->textCursor();
    cursor.movePosition(QTextCursor::EndOfLine, QTextCursor::KeepAnchor);
    edit->setTextCursor(cursor);
    return edit;
}

QPlainTextEdit *newScrollBars()
{
    auto *edit = newText<QPlainTextEdit>();
    edit->setLineWrapMode(QPlainTextEdit::NoWrap);
    const QString line = edit->toPlainText().simplified() + u'\n';
    edit->setPlainText(line.repeated(longSide));
    return edit;
}

template <typename Dialog>
Dialog *newDialog()
{
    auto *dialog = new Dialog;
    dialog->setWindowFlags(Qt::Widget);
    auto *layout = new QVBoxLayout(dialog);
    layout->addWidget(new QLabel(word(0)));
    layout->addWidget(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel));
    return dialog;
}

QMessageBox *newMessageBox()
{
    auto *box = new QMessageBox(QMessageBox::Warning, QString(), word(5), QMessageBox::Save | QMessageBox::Cancel);
    box->setWindowFlags(Qt::Widget);
    return box;
}

QTabBar *newTabBar()
{
    auto *bar = new QTabBar;
    for (int i = 0; i < 3; ++i) {
        bar->addTab(word(i));
    }
    bar->setTabEnabled(2, false);
    return bar;
}

QTabWidget *newTabs()
{
    auto *tabs = new QTabWidget;
    for (int i = 0; i < 3; ++i) {
        tabs->addTab(new QLabel(word(i + 3)), word(i));
    }
    return tabs;
}

QSplitter *newSplitter()
{
    auto *splitter = new QSplitter;
    splitter->addWidget(new QLabel(word(0)));
    splitter->addWidget(new QLabel(word(1)));
    return splitter;
}

template <typename Slider>
Slider *newSlider()
{
    auto *slider = new Slider;
    slider->setOrientation(Qt::Horizontal);
    slider->setFixedWidth(longSide);
    slider->setValue(30);
    return slider;
}

QProgressBar *newProgress()
{
    auto *bar = new QProgressBar;
    bar->setFixedWidth(longSide);
    bar->setValue(60);
    return bar;
}

QDialogButtonBox *newButtonBox()
{
    return new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help);
}

QGraphicsView *newGraphicsView()
{
    auto *view = new QGraphicsView;
    view->setFixedSize(viewSize);
    return view;
}

QSizeGrip *newSizeGrip()
{
    return new QSizeGrip(nullptr);
}

template <typename Widget>
Widget *newPlain()
{
    auto *widget = new Widget;
    widget->setAttribute(Qt::WA_StyledBackground);
    widget->setMinimumSize(leastSize);
    return widget;
}

/*! Wide enough to see its ground. */
template <typename Widget>
Widget *newGround()
{
    auto *widget = newPlain<Widget>();
    widget->setMinimumWidth(longSide);
    return widget;
}

template <typename Widget>
Widget *withText()
{
    auto *widget = new Widget;
    widget->setText(word(0));
    return widget;
}

/*! Something to hold the mouse over; the tool tip itself is a window of Qt's. */
QLabel *newToolTip()
{
    auto *label = withText<QLabel>();
    label->setToolTip(word(1));
    return label;
}

template <typename Widget>
QWidget *newBare()
{
    auto *widget = new Widget;
    widget->setWindowFlags(Qt::Widget);
    widget->setAttribute(Qt::WA_StyledBackground);
    return widget;
}

template <typename Widget>
SpecimenMakers withBare(const std::function<QWidget *()> &filled)
{
    return {filled, &newBare<Widget>};
}

const QHash<QString, SpecimenMakers> &allMakers()
{
    static const QHash<QString, SpecimenMakers> all{
        {u""_qs, withBare<QWidget>(&newGround<QWidget>)},
        {u"QWidget"_qs, withBare<QWidget>(&newGround<QWidget>)},
        {u"QFrame"_qs, withBare<QFrame>(&newGround<QFrame>)},
        {u"QDialog"_qs, withBare<QDialog>(&newDialog<QDialog>)},
        {u"QMessageBox"_qs, withBare<QMessageBox>(&newMessageBox)},
        {u"QDialogButtonBox"_qs, withBare<QDialogButtonBox>(&newButtonBox)},
        {u"QToolTip"_qs, withBare<QLabel>(&newToolTip)},
        {u"QLabel"_qs, withBare<QLabel>(&withText<QLabel>)},
        {u"QAbstractButton"_qs, withBare<QPushButton>(&withText<QPushButton>)},
        {u"QPushButton"_qs, withBare<QPushButton>(&withText<QPushButton>)},
        {u"QToolButton"_qs, withBare<QToolButton>(&newPlain<QToolButton>)},
        {u"QCheckBox"_qs, withBare<QCheckBox>(&withText<QCheckBox>)},
        {u"QRadioButton"_qs, withBare<QRadioButton>(&withText<QRadioButton>)},
        {u"QLineEdit"_qs, withBare<QLineEdit>(&withText<QLineEdit>)},
        {u"QSpinBox"_qs, withBare<QSpinBox>(&newPlain<QSpinBox>)},
        {u"QDoubleSpinBox"_qs, withBare<QDoubleSpinBox>(&newPlain<QDoubleSpinBox>)},
        {u"QPlainTextEdit"_qs, withBare<QPlainTextEdit>(&newText<QPlainTextEdit>)},
        {u"QTextEdit"_qs, withBare<QTextEdit>(&newText<QTextEdit>)},
        {u"QTextBrowser"_qs, withBare<QTextBrowser>(&newText<QTextBrowser>)},
        {u"QAbstractItemView"_qs, withBare<QListView>(&newView<QListView>)},
        {u"QListView"_qs, withBare<QListView>(&newView<QListView>)},
        {u"QTableView"_qs, withBare<QTableView>(&newView<QTableView>)},
        {u"QHeaderView"_qs, withBare<QTableView>(&newView<QTableView>)},
        {u"QTableCornerButton"_qs, withBare<QTableView>(&newView<QTableView>)},
        {u"QTreeView"_qs, withBare<QTreeView>(&newTree)},
        {u"QGroupBox"_qs, withBare<QGroupBox>(&newGroup<QGroupBox>)},
        {u"QComboBox"_qs, withBare<QComboBox>(&newCombo<QComboBox>)},
        {u"QSlider"_qs, withBare<QSlider>(&newSlider<QSlider>)},
        {u"QProgressBar"_qs, withBare<QProgressBar>(&newProgress)},
        {u"QScrollBar"_qs, withBare<QPlainTextEdit>(&newScrollBars)},
        {u"QAbstractScrollArea"_qs, withBare<QPlainTextEdit>(&newScrollBars)},
        {u"QScrollArea"_qs, withBare<QPlainTextEdit>(&newScrollBars)},
        {u"QGraphicsView"_qs, withBare<QGraphicsView>(&newGraphicsView)},
        {u"QTabBar"_qs, withBare<QTabBar>(&newTabBar)},
        {u"QTabWidget"_qs, withBare<QTabWidget>(&newTabs)},
        {u"QMenuBar"_qs, withBare<QMenuBar>(&newMenuBar)},
        {u"QMenu"_qs, withBare<QMenu>(&newMenu<QMenu>)},
        {u"QToolBar"_qs, withBare<QToolBar>(&newToolBar)},
        {u"QStatusBar"_qs, withBare<QStatusBar>(&newGround<QStatusBar>)},
        {u"QSplitter"_qs, withBare<QSplitter>(&newSplitter)},
        {u"QSizeGrip"_qs, {&newSizeGrip, {}}},
        {u"CMainWindow"_qs, withBare<CMainWindow>(&newGround<CMainWindow>)},
        {u"CFilmsUniversalFilter"_qs, withBare<CFilmsUniversalFilter>(&newGround<CFilmsUniversalFilter>)},
        {u"COriginalSlider"_qs, withBare<COriginalSlider>(&newPlain<COriginalSlider>)},
        {u"CSlider"_qs, withBare<CSlider>(&newSlider<CSlider>)},
        {u"CGL5LinkButton"_qs, withBare<CGL5LinkButton>(&withText<CGL5LinkButton>)},
        {u"CGroupBox"_qs, withBare<CGroupBox>(&newGroup<CGroupBox>)},
        {u"CComboBox"_qs, withBare<CComboBox>(&newCombo<CComboBox>)},
        {u"CActionableMenu"_qs, withBare<CActionableMenu>(&newMenu<CActionableMenu>)},
        {u"CBalloonMenu"_qs, withBare<CBalloonMenu>(&newMenu<CBalloonMenu>)},
        {u"CStandaloneBatchDlg"_qs, withBare<CStandaloneBatchDlg>(&newDialog<CStandaloneBatchDlg>)},
        {u"CPluginBatchDlg"_qs, withBare<CPluginBatchDlg>(&newDialog<CPluginBatchDlg>)},
        {u"CProgressDlg"_qs, withBare<CProgressDlg>(&newDialog<CProgressDlg>)},
        {u"CFileSaveDialog"_qs, withBare<CFileSaveDialog>(&newDialog<CFileSaveDialog>)},
        {u"CFileBrowserProgressDialog"_qs,
         withBare<CFileBrowserProgressDialog>(&newDialog<CFileBrowserProgressDialog>)},
        {u"CCheckForUpdateDialog"_qs, withBare<CCheckForUpdateDialog>(&newDialog<CCheckForUpdateDialog>)},
        {u"CPreferenciesDialog"_qs, withBare<CPreferenciesDialog>(&newDialog<CPreferenciesDialog>)},
        {u"RewriteConfirmation"_qs, withBare<RewriteConfirmation>(&newDialog<RewriteConfirmation>)},
    };
    return all;
}

} // namespace

SpecimenMakers specimenMakers(const QString &type)
{
    return allMakers().value(type);
}
