// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QFileDialog>

class QPushButton;

namespace ZYX_zglv6 {

/*!
    Lets the user choose a file or a folder, for systems whose dialogs don't. Releasing the mouse on the button chooses
    what is selected, or else the folder that is shown. Enter and the keyboard on the button never end the dialog: they
    go into a folder.
*/
class FolderPicker final : public QFileDialog
{
    Q_OBJECT

public:
    /*!
        An empty \a title and a \a directory that isn't there leave the choice to QFileDialog. \a filter is "Name (*.a
        *.b)"; folders are always shown.
    */
    FolderPicker(QWidget *parent, const QString &title, const QString &directory, const QString &filter,
                 const QString &buttonLabel);
    ~FolderPicker() override;

    /*! The chosen path with native separators; empty until there is one. */
    QString answer() const;

    void done(int result) override;

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    QString selectedPath() const;
    void choose();

    QPushButton *m_button; // child
    QString m_answer;
};

/*! Shows a FolderPicker and waits. Empty if the user closes it or cancels. */
QString chooseInFolderPicker(QWidget *parent, const QString &title, const QString &directory, const QString &filter,
                             const QString &buttonLabel);

} // namespace ZYX_zglv6
