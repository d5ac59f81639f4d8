#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""A client on zeep: zeepClient.py URL. Makes four calls and prints what it understood, a line each."""

import sys
from pathlib import Path

from zeep import Client, Transport

sys.stdout.reconfigure(encoding="utf-8")
description = Path(__file__).with_name("photoPeer.wsdl")
client = Client(str(description), transport=Transport(timeout=20, operation_timeout=20))
service = client.create_service("{urn:photoPeer}photoPeer", sys.argv[1])

print("echo", service.echo("Äpfel <&> 日本語"))
print("add", service.add(2147483647, -40))
print("negate", str(service.negate(False)).lower())
photo = service.rotate({"name": "Möwe.jpg", "width": 6000, "height": 4000, "isColour": True})
print("rotate", photo.name, photo.width, photo.height, str(photo.isColour).lower())
