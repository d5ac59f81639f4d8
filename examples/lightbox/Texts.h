// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

/*!
    Installs this program's own texts in the language that the library's are in, for good; none for English, the
    language of the source. Once, after putOnLook() and before any window is made.
*/
void speakLoadedLanguage();
