// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "PresetLibrary.h"

#include <QtWidgets/QDialog>

#include <memory>

class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QTextBrowser;
class QVBoxLayout;

/*!
    The looks of a library by name, narrowed by tags, by a search and to those of the expert mode, with the note on the
    chosen one. Its texts follow a change of the program's language, apart from that of a failure, which stays as it was
    told.
*/
class CPresetBrowser final : public QDialog
{
    Q_OBJECT

public:
    explicit CPresetBrowser(std::shared_ptr<const CPresetLibrary> library, QWidget *parent = nullptr);

    /*! Chooses that preset. What would hide it is taken back: tags, search, expert. False if there is no such look. */
    bool showPreset(const QString &id);

protected:
    void changeEvent(QEvent *event) override;

private:
    void addFilters(QVBoxLayout *column);
    void addInfo(QVBoxLayout *column);
    void retranslate();
    void fillList();
    void showChosen();
    void labelTags();
    bool isOffered(const Preset &preset) const;
    bool isWanted(const Preset &preset, const QString &name) const;
    bool selectRow(const QString &id);
    void dropFilters();
    QString chosenId() const;
    QString textOf(const Preset &preset, const QString &language) const;

    const std::shared_ptr<const CPresetLibrary> m_library;
    QLineEdit *m_search;
    QList<QPair<QString, QCheckBox *>> m_tags;
    QCheckBox *m_expert;
    QListWidget *m_list;
    QLabel *m_count;
    QLabel *m_title;
    QTextBrowser *m_text;
};
