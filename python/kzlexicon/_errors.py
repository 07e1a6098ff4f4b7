"""Exceptions of the library: Error, with a subclass for each code."""

from __future__ import annotations

from typing import ClassVar

from ._values import CodePage, ErrorCode, Place


class Error(Exception):
    """A failure of the library; str() is the message with the place."""

    code: ClassVar[ErrorCode]

    def __init__(self, message: str, place: Place = Place(), text: str | None = None) -> None:
        super().__init__(message if text is None else text)
        self.message = message
        self.place = place

    def __str__(self) -> str:
        return str(self.args[0])

    @property
    def file(self) -> str:
        """The file, empty for none."""
        return self.place.file

    @property
    def line(self) -> int:
        """The line, counted from 1; 0 for none."""
        return self.place.line

    @property
    def column(self) -> int:
        """The column in characters, counted from 1; 0 for none."""
        return self.place.column

    @property
    def offset(self) -> int:
        """The offset in bytes, of the file or of the text that was given; -1 for none."""
        return self.place.offset


class ArgumentError(Error, ValueError):
    """An argument that the call does not take, or a call of an object that is closed."""

    code = ErrorCode.ARGUMENT


class FileError(Error, OSError):
    """A file cannot be opened, read or written, or memory is exhausted."""

    code = ErrorCode.FILE


class DataError(Error, ValueError):
    """Input that is not what it should be, or that the format cannot hold."""

    code = ErrorCode.DATA


class CodePageError(Error, ValueError):
    """A character that the code page lacks; both are None where the message alone names them."""

    code = ErrorCode.CODE_PAGE

    def __init__(
        self,
        message: str,
        place: Place = Place(),
        text: str | None = None,
        character: str | None = None,
        page: CodePage | None = None,
    ) -> None:
        super().__init__(message, place, text)
        self.character = character
        self.page = page
