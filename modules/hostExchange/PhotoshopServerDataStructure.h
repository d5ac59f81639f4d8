// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "hostExchange/PhotoshopDataStructure.h"

namespace ZYX_zglv6 {

/*!
    The answer of the other side: whether its work succeeded, and the image only where it did.

    The destructor deletes the image file, in every case: who wants the pixels has to load() them before. The data file
    stays.
*/
class UTILSDLL_EXPORT PhotoshopServerDataStructure : public PhotoshopDataStructure
{
public:
    using PhotoshopDataStructure::PhotoshopDataStructure;
    ~PhotoshopServerDataStructure() override;

    /*!
        As load() of the base. Where the data file can't be read, "exitCode" becomes -1 too. A run that failed
        gives true and no pixels: its record was read.
    */
    [[nodiscard]] bool load(char **imageData) override;

    /*! Whether "exitCode" is there as an integer (tag 1) and is 0. */
    [[nodiscard]] bool isImageExpected() const override;

    /*! The integer (tag 1) under "exitCode": 0 for success; -1 for a failure, and where there is none. */
    [[nodiscard]] int exitCode() const;

    /*! Makes "exitCode" -1. */
    void setFailed();

    /*! Deletes what is at imageFilePath(): a file; on Linux also an empty folder. */
    void removeImageFile();
};

} // namespace ZYX_zglv6
