# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""What the makers of icons, pictures and shadows share: SVG text, base shapes, colours and PNG files."""
