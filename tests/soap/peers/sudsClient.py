#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""A client on suds: sudsClient.py URL. Makes four calls and prints what it understood, a line each."""

import sys
from pathlib import Path

from suds.client import Client

sys.stdout.reconfigure(encoding="utf-8")
description = Path(__file__).with_name("photoPeer.wsdl")
client = Client(description.as_uri(), location=sys.argv[1], timeout=20, cache=None)
service = client.service

print("echo", service.echo("Äpfel <&> 日本語"))
print("add", service.add(2147483647, -40))
print("negate", str(service.negate(False)).lower())
photo = client.factory.create("{urn:photoPeer}Photo")
photo.name, photo.width, photo.height, photo.isColour = "Möwe.jpg", 6000, 4000, True
photo = service.rotate(photo)
print("rotate", photo.name, photo.width, photo.height, str(photo.isColour).lower())
