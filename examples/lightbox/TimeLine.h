// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "FilmHistory.h"

#include <QtWidgets/QDialog>

#include <memory>

class CPresetLibrary;
class QLabel;
class QListWidget;
class QTextBrowser;
class QToolButton;
class QUrl;
class QVBoxLayout;

/*!
    The history of photography: the decades, and the films and events of the chosen one. Its texts follow a change of
    the program's language, apart from that of a failure, which stays as it was told.
*/
class CTimeLine final : public QDialog
{
    Q_OBJECT

public:
    CTimeLine(CFilmHistory history, std::shared_ptr<const CPresetLibrary> library, QWidget *parent = nullptr);

Q_SIGNALS:
    /*! The user wants to see the preset \a id, a film of the decade or one to try on an event's picture. */
    void presetChosen(const QString &id);

protected:
    void changeEvent(QEvent *event) override;

private:
    QVBoxLayout *newDecadeColumn();
    QVBoxLayout *newFilmColumn();
    QVBoxLayout *newEventColumn();
    QToolButton *newStepButton(const QString &name, int step);
    void retranslate();
    void step(int step);
    void showDecade();
    void showFilms(const Decade &decade);
    QString textOf(const HistoryEvent &event) const;
    void followLink(const QUrl &link);

    const CFilmHistory m_history;
    const std::shared_ptr<const CPresetLibrary> m_library;
    QListWidget *m_decades;
    QToolButton *m_previous;
    QToolButton *m_next;
    QLabel *m_decade;
    QLabel *m_filmHeading;
    QListWidget *m_films;
    QLabel *m_eventHeading;
    QTextBrowser *m_events;
};
