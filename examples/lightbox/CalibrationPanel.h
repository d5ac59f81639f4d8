// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "CalibrationCatalogue.h"
#include "CalibrationCommand.h"
#include "PhotoMetadata.h"

class QLabel;
class QTableWidget;

/*!
    Which calibration modules serve the open photograph. Its texts follow a change of the program's language, apart from
    that of a failure, which stays as it was told.
*/
class CCalibrationPanel final : public CPhotoDialog
{
    Q_OBJECT

public:
    /*! The catalogue is copied to a folder below \a workFolder. */
    explicit CCalibrationPanel(const QString &workFolder, QWidget *parent = nullptr);

    void setPhoto(const QString &path) override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void fillTable();
    QString cameraText() const;
    QString stateText() const;

    CCalibrationCatalogue m_catalogue;
    QString m_path;
    PhotoMetadata m_photo;
    CalibrationAnswer m_answer;
    QLabel *m_name;
    QLabel *m_camera;
    QLabel *m_state;
    QTableWidget *m_modules;
};
