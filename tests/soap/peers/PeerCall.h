// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/soap/QtSoapMessage.h"
#include "utilsDll/soap/QtSoapStruct.h"

#include <QtCore/QString>

/*! The namespace of the photo service. */
QString peerNamespace();

struct Photo
{
    QString name;
    int width = 0;
    int height = 0;
    bool isColour = false;
};

/*! A photo as the service has it; its members are in the namespace of the element itself. */
ZYX_zglv6::QtSoapStruct *newPhoto(const ZYX_zglv6::QtSoapQName &element, const Photo &photo);

/*! The answer to \a request of the service at \a port. A fault tells if none comes in time. */
ZYX_zglv6::QtSoapMessage call(const ZYX_zglv6::QtSoapMessage &request, int port);
