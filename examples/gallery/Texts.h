// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

/*! What a host would say in its dialogs. */
enum class Text { Problem, Hint, Question, Rotate, DoNotAskAgain, Save, Quit, Long };

/*! In the chosen language; in English where there is none. */
QString galleryText(Text text);
