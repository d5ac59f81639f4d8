#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""The photo service on spyne, document/literal. Prints its port; ends when its standard input ends."""

import logging
import os
import sys
import threading
from wsgiref.simple_server import WSGIRequestHandler, make_server

from lxml import etree
from spyne import Application, Array, Boolean, ComplexModel, Fault, Integer, Integer32, ServiceBase, Unicode, rpc
from spyne.protocol.soap import Soap11
from spyne.server.wsgi import WsgiApplication

NAMESPACE = "urn:photoPeer"


class Photo(ComplexModel):
    __namespace__ = NAMESPACE
    _type_info = [("name", Unicode), ("width", Integer32), ("height", Integer32), ("isColour", Boolean)]


class Caller(ComplexModel):
    __namespace__ = NAMESPACE
    __type_name__ = "caller"
    _type_info = [("user", Unicode), ("machine", Integer32)]


def limit():
    element = etree.Element("{%s}limit" % NAMESPACE)
    element.text = "1"
    return element


class PhotoPeer(ServiceBase):
    __in_header__ = Caller

    @rpc(Unicode, _returns=Unicode)
    def echo(ctx, text):
        return text

    @rpc(Integer, Integer, _returns=Integer)  # Integer32 refuses the smallest one
    def add(ctx, first, second):
        return first + second

    @rpc(Boolean, _returns=Boolean)
    def negate(ctx, value):
        return not value

    @rpc(Photo, _returns=Photo)
    def rotate(ctx, photo):
        return Photo(name=photo.name, width=photo.height, height=photo.width, isColour=photo.isColour)

    @rpc(Array(Integer32), _returns=Array(Integer32))
    def reverse(ctx, numbers):
        return numbers[::-1]

    @rpc(Integer32, _returns=Array(Photo))
    def album(ctx, count):
        return [Photo(name="photo %d" % i, width=100 + i, height=10 * i, isColour=i % 2 == 1) for i in range(count)]

    @rpc(Array(Photo), _returns=Photo)
    def panorama(ctx, photos):
        return Photo(name="panorama", width=sum(p.width for p in photos), height=min(p.height for p in photos),
                     isColour=all(p.isColour for p in photos))

    @rpc(_returns=Unicode)
    def whoCalls(ctx):
        return "%s at %d" % (ctx.in_header.user, ctx.in_header.machine) if ctx.in_header else "nobody"

    @rpc(Unicode, _returns=Unicode)
    def fail(ctx, code):
        raise Fault(code, "Größe < 1", detail=limit())


class QuietHandler(WSGIRequestHandler):
    def log_message(self, *arguments):
        pass


def end_with_input():
    sys.stdin.read()
    os._exit(0)


logging.disable(logging.CRITICAL)
application = Application([PhotoPeer], NAMESPACE, in_protocol=Soap11(validator="soft"), out_protocol=Soap11())
server = make_server("127.0.0.1", 0, WsgiApplication(application), handler_class=QuietHandler)
threading.Thread(target=end_with_input, daemon=True).start()
print("listening on", server.server_port, flush=True)
server.serve_forever()
