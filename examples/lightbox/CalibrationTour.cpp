// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "CalibrationCatalogue.h"
#include "PhotoMetadata.h"
#include "ReferenceTour.h"

#include <QtCore/QFileInfo>

namespace {

QString modulesOf(const CalibrationAnswer &answer, bool hasLens)
{
    QStringList names;
    for (const CalibrationModule &module : answer.modules) {
        names.append(module.fileName());
    }
    switch (answer.state) {
    case CalibrationAnswer::Served:
        return (answer.isOfOneLens() ? u""_qs : u"one of "_qs) + names.join(u", "_qs);
    case CalibrationAnswer::LensUnknown:
        return (hasLens ? u"no module has this lens, %1 have others"_qs : u"it tells no lens, %1 modules have some"_qs)
            .arg(names.size());
    case CalibrationAnswer::BodyUnknown:
        return u"the catalogue does not have this camera"_qs;
    case CalibrationAnswer::Failed:
        break;
    }
    return answer.error;
}

} // namespace

QString tourCalibration(const QString &photo)
{
    const PhotoMetadata metadata = readPhotoMetadata(photo);
    if (!metadata.error.isEmpty()) {
        return metadata.error;
    }
    const QString name = QFileInfo(photo).fileName();
    if (!metadata.hasCamera()) {
        return u"%1 does not tell its camera"_qs.arg(name);
    }
    const CCalibrationCatalogue catalogue;
    const CalibrationAnswer answer = catalogue.find(queryOf(metadata));
    return u"%1, %2, %3, %4 mm: %5"_qs.arg(name, metadata.model, metadata.lens, QString::number(metadata.focalLength),
                                           modulesOf(answer, metadata.hasLens()));
}
