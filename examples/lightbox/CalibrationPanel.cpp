// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "CalibrationPanel.h"

#include "WindowLook.h"

#include <QtCore/QEvent>
#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QVBoxLayout>

namespace {

constexpr QSize firstSize(680, 420);
enum Column { ModuleColumn, LensColumn, FocalColumn, KindColumn, ColumnCount };

QString millimetres(const QString &lengths)
{
    return CCalibrationPanel::tr("%1 mm").arg(lengths);
}

QString rangeText(const CalibrationModule &module)
{
    if (module.shortest <= 0.0) {
        return u"–"_qs; // the catalogue has 0 to 2000 for a built-in lens of which it knows no range
    }
    const QString shortest = QLocale().toString(module.shortest);
    const QString longest = QLocale().toString(module.longest);
    return millimetres(shortest == longest ? shortest : QString(shortest + u"–" + longest));
}

QString kindText(const CalibrationModule &module)
{
    if (module.isRawOnly) {
        return CCalibrationPanel::tr("RAW only");
    }
    return module.isRgbOnly ? CCalibrationPanel::tr("RGB only") : CCalibrationPanel::tr("RAW and RGB");
}

QLabel *newLabel(const QString &name)
{
    auto *label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText); // it shows what a file tells
    label->setWordWrap(true);
    return label;
}

} // namespace

CCalibrationPanel::CCalibrationPanel(const QString &workFolder, QWidget *parent)
    : CPhotoDialog(parent)
    , m_catalogue(workFolder)
    , m_name(newLabel(u"headingLabel"_qs))
    , m_camera(newLabel(u"profileLabel"_qs))
    , m_state(newLabel(u"cafStateLabel"_qs))
    , m_modules(new QTableWidget(0, ColumnCount))
{
    m_modules->setEditTriggers(QTableWidget::NoEditTriggers);
    m_modules->setSelectionBehavior(QTableWidget::SelectRows);
    m_modules->verticalHeader()->hide();
    m_modules->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_modules->horizontalHeader()->setSectionResizeMode(LensColumn, QHeaderView::Stretch);
    auto *layout = new QVBoxLayout(this);
    for (QLabel *label : {m_name, m_camera, m_state}) {
        layout->addWidget(label);
    }
    layout->addWidget(m_modules, 1);
    putOnWindowLook(*this);
    resize(firstSize);
    setPhoto(QString());
}

void CCalibrationPanel::setPhoto(const QString &path)
{
    m_path = path;
    m_photo = path.isEmpty() ? PhotoMetadata() : readPhotoMetadata(path);
    m_answer = m_photo.hasCamera() ? m_catalogue.find(queryOf(m_photo)) : CalibrationAnswer();
    retranslate();
}

void CCalibrationPanel::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void CCalibrationPanel::retranslate()
{
    setWindowTitle(tr("Calibration modules"));
    m_name->setText(m_path.isEmpty() ? tr("No photograph is open") : QFileInfo(m_path).fileName());
    m_camera->setText(cameraText());
    m_state->setText(stateText());
    m_modules->setAccessibleName(windowTitle());
    m_modules->setHorizontalHeaderLabels({tr("Module"), tr("Lens"), tr("Focal length"), tr("Images")});
    fillTable();
}

void CCalibrationPanel::fillTable()
{
    m_modules->setRowCount(int(m_answer.modules.size()));
    for (int row = 0; row < m_modules->rowCount(); ++row) {
        const CalibrationModule &module = m_answer.modules.at(row);
        m_modules->setItem(row, ModuleColumn, new QTableWidgetItem(module.fileName()));
        m_modules->setItem(row, LensColumn, new QTableWidgetItem(module.lens));
        m_modules->setItem(row, FocalColumn, new QTableWidgetItem(rangeText(module)));
        m_modules->setItem(row, KindColumn, new QTableWidgetItem(kindText(module)));
    }
}

/*! Such as "Canon EOS 5D Mark IV, EF24-70mm f/2.8L II USM, 35 mm". */
QString CCalibrationPanel::cameraText() const
{
    QStringList parts{m_photo.model, m_photo.lens};
    if (m_photo.focalLength > 0.0) {
        parts.append(millimetres(QLocale().toString(m_photo.focalLength)));
    }
    parts.removeAll(QString());
    return parts.join(u", "_qs);
}

QString CCalibrationPanel::stateText() const
{
    if (m_path.isEmpty()) {
        return {};
    }
    if (!m_photo.error.isEmpty()) {
        return m_photo.error;
    }
    if (!m_photo.hasCamera()) {
        return tr("The photograph does not tell its camera");
    }
    switch (m_answer.state) {
    case CalibrationAnswer::Served:
        return m_answer.isOfOneLens() ? tr("These modules serve it:") : tr("One of these modules may serve it:");
    case CalibrationAnswer::LensUnknown:
        if (m_answer.modules.isEmpty()) {
            return tr("No module of this camera serves the photograph");
        }
        return m_photo.hasLens() ? tr("No module was found for this lens. The camera has these:")
                                 : tr("The photograph does not tell its lens. The camera has these:");
    case CalibrationAnswer::BodyUnknown:
        return tr("The catalogue does not have this camera");
    case CalibrationAnswer::Failed:
        break;
    }
    return m_answer.error;
}
