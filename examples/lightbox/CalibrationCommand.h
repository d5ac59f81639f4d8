// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QDialog>

/*! A window that tells something of the photograph that is open. */
class CPhotoDialog : public QDialog
{
    Q_OBJECT

public:
    using QDialog::QDialog;

    /*! An empty path: none is open. */
    virtual void setPhoto(const QString &path) = 0;
};

// A program that is built without a database or without a reader of photographs' data does not offer that window.

bool isCalibrationOffered();

/*! The window of calibration modules, which \a parent owns; null if it is not offered. */
CPhotoDialog *newCalibrationPanel(QWidget *parent);
