# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
#
# A log4cplus that was built with wide characters may have its target under another name.

if(NOT TARGET log4cplus::log4cplus)
    add_library(log4cplus::log4cplus INTERFACE IMPORTED)
    set_target_properties(log4cplus::log4cplus PROPERTIES INTERFACE_LINK_LIBRARIES log4cplus::log4cplusU)
endif()
