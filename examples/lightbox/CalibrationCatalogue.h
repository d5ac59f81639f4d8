// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QDir>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

struct PhotoMetadata;

enum class ImageKind { Raw, Rgb };

/*! What a photograph tells of how it was taken. */
struct CalibrationQuery
{
    QStringList bodies; // identifiers, the likeliest first
    QString lensId; // as the camera tells it; empty if it does not
    QString lensName;
    double focalLength = 0.0; // in millimetres; 0 if it is not known
    ImageKind kind = ImageKind::Rgb;
};

/*! For the photograph that \a metadata are of. */
CalibrationQuery queryOf(const PhotoMetadata &metadata);

struct CalibrationModule
{
    bool operator==(const CalibrationModule &other) const = default;

    /*! The name of the module's file. */
    QString fileName() const;

    QString cid;
    QString lens; // its display name
    double shortest = 0.0; // focal length in millimetres
    double longest = 0.0;
    bool isRawOnly = false;
    bool isRgbOnly = false;
};

struct CalibrationAnswer
{
    enum State {
        Served, // by these modules
        LensUnknown, // these serve other lenses on the body at that focal length; there may be none
        BodyUnknown,
        Failed, // the error tells why
    };

    /*! Not so where an id is that of many lenses and no name tells which. */
    bool isOfOneLens() const;

    State state = Failed;
    QString body; // the identifier that was found
    QList<CalibrationModule> modules;
    QString error;
};

/*!
    The catalogue of calibration modules that the library carries. It is copied to a folder of its own below
    \a workFolder, because no database can be opened within the program; it goes with the object, and a program that is
    killed leaves it there. Use it in the thread that made it.
*/
class CCalibrationCatalogue final
{
public:
    explicit CCalibrationCatalogue(const QString &workFolder = QDir::tempPath());
    CCalibrationCatalogue(const CCalibrationCatalogue &) = delete;
    CCalibrationCatalogue &operator=(const CCalibrationCatalogue &) = delete;
    ~CCalibrationCatalogue();

    /*! Why it could not be opened; empty if it is open. */
    const QString &error() const;

    /*!
        The modules that serve, of the first of the bodies that has some; of a body that can't be found, an error or an
        unknown lens the answer tells so.
    */
    CalibrationAnswer find(const CalibrationQuery &query) const;

    /*!
        What a photograph tells of maker and model, as identifiers of the catalogue: those of the cameras that tell this
        model, then the two run together, at last with the maker that the model begins with.
    */
    static QStringList bodiesOf(const QString &make, const QString &model);

    /*! The SQL of find() that uses indexes: for a body, for the modules of a lens by all ways, for all of a body. */
    static QStringList statements();

private:
    void open(const QString &workFolder);

    struct Copy;
    std::unique_ptr<Copy> m_copy;
    QString m_error;
};
