// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Texts.h"

#include "Resources.h"

#include "common/Look.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QTranslator>

void speakLoadedLanguage()
{
    initLightboxResources();
    const QString path = u":/lightbox/translations/lightbox_%1.qm"_qs.arg(loadedLanguageAbbreviation());
    if (!QFile::exists(path)) {
        return; // the texts of the source
    }
    auto *texts = new QTranslator(QCoreApplication::instance()); // the application owns it
    if (texts->load(path)) {
        QCoreApplication::installTranslator(texts);
    }
}
