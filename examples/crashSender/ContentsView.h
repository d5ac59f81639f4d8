// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ReportContents.h"

#include <QtWidgets/QSplitter>

#include <memory>

class QPlainTextEdit;
class QTreeWidget;

/*! The files of a report, and what the selected one says. */
class CContentsView final : public QSplitter
{
    Q_OBJECT

public:
    explicit CContentsView(QWidget *parent = nullptr);

    /*! Keeps the selection, if there is a file of that name. */
    void showArchive(const QString &archive);

    QTreeWidget *list() const;
    QPlainTextEdit *preview() const;

private:
    void previewCurrent();

    std::unique_ptr<CReportContents> m_contents;
    QTreeWidget *m_list;
    QPlainTextEdit *m_preview;
};
