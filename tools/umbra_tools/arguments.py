"""Command lines."""
import argparse
import sys

from .files import printable


class Parser(argparse.ArgumentParser):
    """Says in one line what is wrong."""

    def __init__(self, program):
        super().__init__(prog=program, add_help=False, allow_abbrev=False)
        self.add_argument("-h", "--help", action="store_true")

    def tell(self, text):
        print("%s: %s" % (self.prog, printable(text)), file=sys.stderr)

    def error(self, message):
        self.tell("%s (see --help)" % message)
        sys.exit(2)
