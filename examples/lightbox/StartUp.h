// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "Options.h"

#include "utilsDll/settings/TemporarySettings.h"

#include <memory>

/*!
    The road on which a host comes up, a function for each step, in the order that binds. Each prints one line with what
    the library answered.
*/
class CStartUp
{
public:
    explicit CStartUp(Options options);

    void reportModule() const;
    void choosePreferencesFile() const;
    void initializeStorage() const;
    void chooseSettings();
    void startLog() const;
    void reportMainWindow() const;
    void noteLaunch() const;

private:
    Options m_options;
    std::unique_ptr<ZYX_zglv6::CTemporarySettings> m_temporarySettings; // settings go back to the system store with it
};
