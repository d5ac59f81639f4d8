// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtCore/QString>

namespace ZYX_zglv6 {

/*!
    The messages that must still be shown when things have gone badly wrong, translated in advance and shown with the
    system's own message box: no event loop, no new widget, no memory. Make one at start-up and keep it.

    Each Show function blocks until the user closes the box. The "Program will be closed" texts only announce what the
    host then does.
*/
class UTILSDLL_EXPORT CErrStrings
{
public:
    CErrStrings();
    CErrStrings(const CErrStrings &other);
    CErrStrings(CErrStrings &&other) noexcept;
    CErrStrings &operator=(const CErrStrings &other);
    CErrStrings &operator=(CErrStrings &&other) noexcept;
    ~CErrStrings();

    /*!
        Fills the texts anew from the current translators: for a change of language. Not while another thread shows one.
    */
    void Retranslate();

    void ShowSmallFreeSpaceDialog() const;
    void ShowOutOfMemoryDialog() const;
    void ShowOutOfMemoryInPhotoshopDialog() const;
    void ShowUnhandledExceptionDialog() const;
    void ShowUnsupportedImageDialog() const;

private:
    void showDialog(const QString &message) const;

    QString m_title;
    QString m_smallFreeSpace;
    QString m_outOfMemory;
    QString m_outOfMemoryInPhotoshop;
    QString m_unhandledException;
    QString m_unsupportedImage;
};

} // namespace ZYX_zglv6
