// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "aboutDlg/MachineStore.h"

#include "aboutDlg/AboutDlg.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTranslator>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QToolButton>

// What the tests of the about box share.
namespace AboutBox {

inline constexpr const char *languages[] = {"en", "de", "fr", "ja", "zh_CN"};

template <typename Widget>
Widget &part(const QWidget &dialog, const QString &name)
{
    auto *widget = dialog.findChild<Widget *>(name);
    if (!widget) {
        qFatal("The about box has no %s", qPrintable(name));
    }
    return *widget;
}

inline QLabel &label(const QWidget &dialog, const QString &name)
{
    return part<QLabel>(dialog, name);
}

inline QTextBrowser &description(const QWidget &dialog)
{
    return part<QTextBrowser>(dialog, u"description"_qs);
}

inline QToolButton &backButton(const QWidget &dialog)
{
    return *part<QWidget>(dialog, u"licensesPage"_qs).findChild<QToolButton *>();
}

/*! The object name of the page that is shown. */
inline QString page(const QWidget &dialog)
{
    return part<QStackedWidget>(dialog, u"stackedWidget"_qs).currentWidget()->objectName();
}

/*! As a click on the last sentence of the legal line does. */
inline void followLastLink(const QWidget &dialog)
{
    Q_EMIT label(dialog, u"copyrightTextLabel"_qs).linkActivated(u"Zyx Grainlab"_qs);
}

/*! While it lives, the program speaks that language. */
class Language
{
public:
    explicit Language(const QString &abbreviation)
    {
        if (!m_catalogue.load(u":/translations/zyx_"_qs + abbreviation + u".qm"_qs)
            || !QCoreApplication::installTranslator(&m_catalogue)) {
            qFatal("There is no catalogue for %s", qPrintable(abbreviation));
        }
    }

private:
    QTranslator m_catalogue; // leaves the application with its end
};

/*! While it lives, takes the addresses that would go to the browser. */
class Browser : public QObject
{
    Q_OBJECT

public:
    QList<QUrl> opened;

    Browser()
    {
        for (const QString &scheme : m_schemes) {
            QDesktopServices::setUrlHandler(scheme, this, "open");
        }
    }

    ~Browser() override
    {
        for (const QString &scheme : m_schemes) {
            QDesktopServices::unsetUrlHandler(scheme);
        }
    }

    Q_INVOKABLE void open(const QUrl &address)
    {
        opened.append(address);
    }

private:
    const QStringList m_schemes{u"http"_qs, u"https"_qs};
};

inline bool write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly)
        && file.write(bytes) == bytes.size();
}

} // namespace AboutBox
