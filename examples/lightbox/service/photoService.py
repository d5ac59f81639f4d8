#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Describes photos in words, over SOAP 1.1 on 127.0.0.1. Needs spyne (Debian: python3-spyne).

Prints "listening on PORT" and ends when its standard input ends.
"""

import argparse
import logging
import os
import sys
import threading
from wsgiref.simple_server import WSGIRequestHandler, make_server

from spyne import Application, Fault, Integer32, ServiceBase, Unicode, rpc
from spyne.protocol.soap import Soap11
from spyne.server.wsgi import WsgiApplication


class PhotoService(ServiceBase):
    @rpc(Unicode(min_occurs=1, nillable=False), Integer32(min_occurs=1, nillable=False),
         Integer32(min_occurs=1, nillable=False), _returns=Unicode)
    def DescribePhoto(ctx, name, width, height):
        if width < 1 or height < 1:
            raise Fault("Client", "A photo has at least one pixel: %d x %d" % (width, height))
        return "%s: %d x %d pixels, %.1f megapixels" % (name, width, height, width * height / 1e6)


class QuietHandler(WSGIRequestHandler):
    def log_message(self, *arguments):
        pass


def end_with_input():
    sys.stdin.read()
    os._exit(0)


def main():
    parser = argparse.ArgumentParser(description="A SOAP 1.1 service on 127.0.0.1 that describes photos in words.")
    parser.add_argument("--port", type=int, default=0, help="0, as it is without this, takes any free one")
    options = parser.parse_args()

    logging.disable(logging.ERROR)  # a fault is an answer, nothing for a log
    application = Application([PhotoService], "urn:lightbox:photos", in_protocol=Soap11(validator="soft"),
                              out_protocol=Soap11())
    server = make_server("127.0.0.1", options.port, WsgiApplication(application), handler_class=QuietHandler)
    threading.Thread(target=end_with_input, daemon=True).start()
    print("listening on", server.server_port, flush=True)
    server.serve_forever()


if __name__ == "__main__":
    main()
