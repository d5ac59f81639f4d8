// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "baseDialogs/FolderPicker_p.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QItemSelectionModel>
#include <QtCore/QPointer>
#include <QtGui/QFileSystemModel>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>

#include <memory>

namespace ZYX_zglv6 {

namespace {

bool isReleaseOn(const QWidget *widget, const QEvent *event)
{
    if (event->type() != QEvent::MouseButtonRelease) {
        return false;
    }
    const auto *mouse = static_cast<const QMouseEvent *>(event);
    return mouse->button() == Qt::LeftButton && widget->rect().contains(mouse->position().toPoint());
}

} // namespace

FolderPicker::FolderPicker(QWidget *parent, const QString &title, const QString &directory, const QString &filter,
                           const QString &buttonLabel)
    : QFileDialog(parent, title)
    , m_button(new QPushButton(buttonLabel, this))
{
    setOption(QFileDialog::DontUseNativeDialog);
    setFileMode(QFileDialog::ExistingFile); // of all modes the one that shows files and walks into folders
    setNameFilter(filter);
    if (QFileInfo(directory).isDir()) {
        setDirectory(directory);
    }
    auto *box = findChild<QDialogButtonBox *>();
    // QFileDialog disables and renames its own button with each selection: another one takes its place.
    const std::unique_ptr<QPushButton> plain(box->button(QDialogButtonBox::Open));
    box->removeButton(plain.get());
    box->addButton(m_button, QDialogButtonBox::AcceptRole);
    m_button->setDefault(true);
    m_button->installEventFilter(this);
}

FolderPicker::~FolderPicker() = default;

QString FolderPicker::answer() const
{
    return m_answer;
}

void FolderPicker::done(int result)
{
    // Enter on a file, a double click, the keyboard on the button
    if (result == QDialog::Accepted && m_answer.isEmpty()) {
        return;
    }
    QFileDialog::done(result);
}

bool FolderPicker::eventFilter(QObject *object, QEvent *event)
{
    if (object == m_button && isReleaseOn(m_button, event)) {
        choose();
        return true;
    }
    return QFileDialog::eventFilter(object, event);
}

/*! Folders too, unlike selectedFiles(). Empty if nothing is selected. */
QString FolderPicker::selectedPath() const
{
    const auto *view = findChild<QAbstractItemView *>(u"listView"_qs); // its selection is the other view's as well
    const QModelIndexList rows = view->selectionModel()->selectedRows();
    return rows.isEmpty() ? QString() : rows.first().data(QFileSystemModel::FilePathRole).toString();
}

void FolderPicker::choose()
{
    const QString selected = selectedPath();
    m_answer = QDir::toNativeSeparators(selected.isEmpty() ? directory().absolutePath() : selected);
    done(QDialog::Accepted);
}

QString chooseInFolderPicker(QWidget *parent, const QString &title, const QString &directory, const QString &filter,
                             const QString &buttonLabel)
{
    const QPointer<FolderPicker> picker = new FolderPicker(parent, title, directory, filter, buttonLabel);
    picker->exec();
    const std::unique_ptr<FolderPicker> end(picker); // null if the parent has gone and taken it along
    return end ? end->answer() : QString();
}

} // namespace ZYX_zglv6
