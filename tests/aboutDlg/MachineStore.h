// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/Sandbox.h"

namespace TestSupport {

/*! While it lives, the process finds an empty store in place of the one that the machine's installers write. */
class MachineStore
{
public:
    explicit MachineStore(const Sandbox &sandbox);
    ~MachineStore();

    MachineStore(const MachineStore &) = delete;
    MachineStore &operator=(const MachineStore &) = delete;

    /*! Sets a value of the product, as its installer would. */
    void setValue(const QString &key, const QString &value);

private:
    const QString m_path; // of the file, where it is one
};

} // namespace TestSupport
