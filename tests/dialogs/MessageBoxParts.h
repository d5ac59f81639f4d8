// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/dialogs/MessageBox.h"

/*! What the class keeps to itself: an explicit instantiation may name private members. */
namespace MessageBoxParts {

using ZYX_zglv6::CMessageBox;
using Button = QMessageBox::StandardButton;
using Helper = Button (*)(QWidget *, const QString &, const QString &, QFlags<Button>, Button, QMessageBox::Icon);

template <typename Queue>
quintptr placeOf(const Queue &queue)
{
    return reinterpret_cast<quintptr>(&queue);
}

template <std::unique_ptr<CMessageBox> *owner>
struct Instance
{
    friend CMessageBox *instance()
    {
        return owner->get();
    }
};

template <Helper operation>
struct CommonPath
{
    friend Helper messageHelper()
    {
        return operation;
    }
};

template <QQueue<std::pair<Button, bool>> CMessageBox::*checkBox, QQueue<Button> CMessageBox::*save,
          QQueue<Button> CMessageBox::*yesNo, QQueue<bool> CMessageBox::*rotate>
struct Queues
{
    friend QQueue<std::pair<Button, bool>> checkBoxAnswersOf(const CMessageBox &box)
    {
        return box.*checkBox;
    }
    friend QQueue<Button> saveAnswersOf(const CMessageBox &box)
    {
        return box.*save;
    }
    friend QQueue<Button> yesNoAnswersOf(const CMessageBox &box)
    {
        return box.*yesNo;
    }
    friend QQueue<bool> rotateAnswersOf(const CMessageBox &box)
    {
        return box.*rotate;
    }
    /*! Whether the queues lie in their order. */
    friend bool isInOrder(const CMessageBox &box)
    {
        return placeOf(box.*checkBox) < placeOf(box.*save) && placeOf(box.*save) < placeOf(box.*yesNo)
            && placeOf(box.*yesNo) < placeOf(box.*rotate);
    }
};

template struct Instance<&CMessageBox::m_instance>;
template struct CommonPath<&CMessageBox::messageHelper>;
template struct Queues<&CMessageBox::m_checkBoxAnswers, &CMessageBox::m_saveAnswers, &CMessageBox::m_yesNoAnswers,
                       &CMessageBox::m_rotateAnswers>;

CMessageBox *instance();
Helper messageHelper();
QQueue<std::pair<Button, bool>> checkBoxAnswersOf(const CMessageBox &box);
QQueue<Button> saveAnswersOf(const CMessageBox &box);
QQueue<Button> yesNoAnswersOf(const CMessageBox &box);
QQueue<bool> rotateAnswersOf(const CMessageBox &box);
bool isInOrder(const CMessageBox &box);

} // namespace MessageBoxParts
