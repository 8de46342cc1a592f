"""The functions and records of rulecanvas.h for Python, by ctypes, on the shared object for Linux."""

import ctypes
from ctypes import CFUNCTYPE, POINTER, Structure, byref, c_char, c_char_p, c_float, c_int32, c_uint16, c_uint32, c_void_p

MOUSE_LEFT_DOWN, MOUSE_LEFT_UP, MOUSE_MOVED, MOUSE_RIGHT_DOWN = 1, 2, 3, 4


class PointF(Structure):
    _fields_ = [("x", c_float), ("y", c_float)]


class ColorF(Structure):
    _fields_ = [("alpha", c_float), ("red", c_float), ("green", c_float), ("blue", c_float)]


class TextStyle(Structure):
    _fields_ = [("colour", ColorF), ("size", c_float), ("face", c_char * 32)]


class ClientRect(Structure):
    _fields_ = [("left", c_int32), ("top", c_int32), ("right", c_int32), ("bottom", c_int32)]


class MouseEvent(Structure):
    _fields_ = [("code", c_uint32), ("view", c_uint32), ("unused0", c_uint32), ("x", c_float), ("y", c_float),
                ("unused1", c_uint16), ("key", c_uint16)]


class Delegate(Structure):
    _fields_ = [("target", c_void_p), ("method", c_void_p)]


class Handler(Structure):
    """What the first word points to is the table: destroy, kind, invoke, equals, clone."""
    _fields_ = [("table", POINTER(c_void_p)), ("target", c_void_p), ("method", c_void_p)]


class HandlerHolder(Structure):
    _fields_ = [("table", c_void_p), ("handler", POINTER(Handler))]


DESTROY, INVOKE = 0, 2
FREE_MEMORY = 1
Destroy = CFUNCTYPE(None, POINTER(Handler), c_uint32)
Invoke = CFUNCTYPE(c_void_p, POINTER(Handler), c_void_p, c_void_p)

Notify = CFUNCTYPE(None, c_void_p, c_char_p, c_uint32)
GetClientRect = CFUNCTYPE(None, c_void_p, c_uint32, POINTER(ClientRect))
Capture = CFUNCTYPE(c_uint32, c_void_p, c_uint32)

# Place in the surface's table, name of the method in Surface, result and arguments after the object.
POINT, COLOUR, STYLE = POINTER(PointF), POINTER(ColorF), POINTER(TextStyle)
OPERATIONS = [
    (1, "line", None, POINT, POINT, c_float, COLOUR, c_int32),
    (5, "text", None, POINT, STYLE, c_char_p, c_int32, c_int32),
    (8, "disc", None, POINT, POINT, c_float, ColorF, COLOUR),
    (9, "ellipse", None, POINT, POINT, c_float, COLOUR),
    (10, "rectangle", None, POINT, POINT, c_float, COLOUR, c_int32),
    (12, "text_width", c_float, TextStyle, c_char_p),
    (13, "text_height", c_float, TextStyle, c_char_p),
    (16, "caption", None, c_char_p, POINT, c_int32, ColorF, c_int32, ClientRect, c_int32),
    (18, "begin_layer", None),
    (19, "end_layer", None, c_int32, c_int32),
    (24, "layer_size", None, c_int32, c_int32),
    (31, "fill", None, POINT, POINT, COLOUR),
]
PLACES = 32


class Surface:
    """Derive from it and implement what OPERATIONS names. Pointers are handed on as the records they point to."""

    def __init__(self):
        self.functions = []  # must live as long as the library may call them
        self.table = (c_void_p * PLACES)()
        for place, name, result, *arguments in OPERATIONS:
            function = CFUNCTYPE(result, c_void_p, *arguments)(self._caller(getattr(self, name), arguments))
            self.functions.append(function)
            self.table[place] = ctypes.cast(function, c_void_p).value
        self.words = (c_void_p * 1)(ctypes.addressof(self.table))

    @staticmethod
    def _caller(method, types):
        def call(_self, *values):
            records = (POINT, COLOUR, STYLE)
            return method(*(value[0] if kind in records and value else value for kind, value in zip(types, values)))
        return call


class Container:
    """One enabled container. The callables: notify(text), client_rect(view) -> (width, height), capture(take)."""

    def __init__(self, library, notify, client_rect, capture):
        self.library = library
        self._declare()
        self.handle = library.CreateVideoAnalyseContainer(None)
        self.keep = []
        self._bind(library.SetContainerNotifyEventDelegate, Notify(lambda _self, text, _flag: notify(text)))
        self._bind(library.SetGetContainerRectClientDelegate, GetClientRect(self._client_rect(client_rect)))
        self._bind(library.SetCtrlContainerWinMouseCaptureDelegate, Capture(self._capture(capture)))
        self.mouse, self.drawing = HandlerHolder(), HandlerHolder()
        library.GetContainerWinMouseEventHandler(self.handle, byref(self.mouse))
        library.GetContainerDrawEventHandler(self.handle, byref(self.drawing))
        library.EnableVideoAnalyseContainer(self.handle, 1)

    def add(self, view, kind, name, label="", configuration="", option=""):
        """The number of the new shape, or 0 when it is refused. Texts are bytes to the library."""
        texts = [text.encode() for text in (label, kind, name, configuration, option)]
        return self.library.CreateMainVideoAnalyseShape(self.handle, view, *texts)

    def send(self, code, view, x, y, key=0):
        event = MouseEvent(code, view, 0, x, y, 0, key)
        self._invoke(self.mouse, 0, ctypes.addressof(event))

    def paint(self, view, surface):
        self._invoke(self.drawing, view, ctypes.addressof(surface.words))

    def configuration(self, shape):
        buffer = ctypes.create_string_buffer(64 * 1024)
        found = self.library.GetVideoAnalyseShapeConfigData(self.handle, shape, buffer, len(buffer))
        return buffer.value.decode().rstrip("\n") if found else ""

    def close(self):
        for holder in (self.mouse, self.drawing):
            Destroy(holder.handler[0].table[DESTROY])(holder.handler, FREE_MEMORY)
        self.library.ReleaseVideoAnalyseContainer(self.handle)

    def _declare(self):
        """Only what differs from ctypes' own guess, 32-bit integers."""
        self.library.CreateVideoAnalyseContainer.argtypes = [c_void_p]
        for name in ("CreateVideoAnalyseContainer", "CreateMainVideoAnalyseShape"):
            getattr(self.library, name).restype = c_uint32

    def _bind(self, setter, function):
        self.keep.append(function)
        # Any word that is not null will do as the target: the callables of Python know theirs.
        code = ctypes.cast(function, c_void_p)
        setter(self.handle, byref(Delegate(code, code)))

    @staticmethod
    def _client_rect(client_rect):
        def answer(_self, view, out):
            out[0] = ClientRect(0, 0, *client_rect(view))
        return answer

    @staticmethod
    def _capture(capture):
        def answer(_self, take):
            capture((take & 0xFF) != 0)
            return 1
        return answer

    @staticmethod
    def _invoke(holder, first, second):
        Invoke(holder.handler[0].table[INVOKE])(holder.handler, first, second)
