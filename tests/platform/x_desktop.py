#!/usr/bin/env python3
"""Stands in for the two parts of a desktop that a bare X server lacks.

x_desktop.py tray          owns the notification-area selection until killed
x_desktop.py close WINDOW  sends the frame's close request (WM_DELETE_WINDOW)
"""
import signal
import sys
from ctypes import CDLL, Structure, Union, c_char_p, c_int, c_long, c_ulong, c_void_p, sizeof

xlib = CDLL("libX11.so.6")
for name, result, arguments in [
    ("XOpenDisplay", c_void_p, [c_char_p]),
    ("XDefaultRootWindow", c_ulong, [c_void_p]),
    ("XInternAtom", c_ulong, [c_void_p, c_char_p, c_int]),
    ("XCreateSimpleWindow", c_ulong, [c_void_p, c_ulong] + [c_int] * 5 + [c_ulong] * 2),
    ("XSetSelectionOwner", c_int, [c_void_p, c_ulong, c_ulong, c_ulong]),
    ("XSendEvent", c_int, [c_void_p, c_ulong, c_int, c_long, c_void_p]),
    ("XSync", c_int, [c_void_p, c_int]),
]:
    getattr(xlib, name).restype = result
    getattr(xlib, name).argtypes = arguments


class ClientMessage(Structure):
    _fields_ = [("type", c_int), ("serial", c_ulong), ("send_event", c_int), ("display", c_void_p),
                ("window", c_ulong), ("message_type", c_ulong), ("format", c_int), ("data", c_long * 5)]


class Event(Union):  # XEvent: the client message padded to the size of any event
    _fields_ = [("client", ClientMessage), ("pad", c_long * 24)]


display = xlib.XOpenDisplay(None)
atom = lambda name: xlib.XInternAtom(display, name.encode(), 0)

if sys.argv[1] == "tray":
    owner = xlib.XCreateSimpleWindow(display, xlib.XDefaultRootWindow(display), 0, 0, 1, 1, 0, 0, 0)
    xlib.XSetSelectionOwner(display, atom("_NET_SYSTEM_TRAY_S0"), owner, 0)
    xlib.XSync(display, 0)
    print("ready", flush=True)
    signal.pause()
elif sys.argv[1] == "close":
    event = Event()
    event.client.type = 33  # ClientMessage
    event.client.window = int(sys.argv[2])
    event.client.message_type = atom("WM_PROTOCOLS")
    event.client.format = 32
    event.client.data[0] = atom("WM_DELETE_WINDOW")
    assert sizeof(event) >= 192
    xlib.XSendEvent(display, event.client.window, 0, 0, event.pad)
    xlib.XSync(display, 0)
