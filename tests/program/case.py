"""Base of the program tests: a private desktop, and on it the program that was built."""

import os
import unittest

from desktop import PrivateDesktop
from island import Island

BUILD = os.environ.get("QUILLMERE_BUILD", "build")
SANITIZED = os.environ.get("QUILLMERE_SANITIZED") == "1"


class DesktopTest(unittest.TestCase):
    """A fresh desktop for every test; the test starts the program itself."""

    kind = PrivateDesktop
    scale = 1

    def setUp(self):
        self.desktop = self.enterContext(self.kind(self.scale))

    def start_island(self, defaults=None, first_run=False):
        island = self.enterContext(Island(self.desktop, BUILD, defaults, first_run))
        self.addCleanup(self.check_output, island)
        return island

    def check_output(self, island):
        if faults := island.faults():
            self.fail("the program complained:\n" + "\n".join(faults))


class IslandTest(unittest.TestCase):
    """One desktop and one program, its launch mute over, for all tests of a class."""

    scale = 1
    defaults = {}

    @classmethod
    def prepare(cls):
        """Before the program starts, on its desktop."""

    @classmethod
    def setUpClass(cls):
        cls.desktop = cls.enterClassContext(PrivateDesktop(cls.scale))
        cls.prepare()
        cls.island = cls.enterClassContext(Island(cls.desktop, BUILD, cls.defaults))
        cls.island.wait_out_mute()

    def setUp(self):
        self.island.wait_until_collapsed()

    def tearDown(self):
        if self.island.process.poll() is not None:
            self.fail(f"the program ended with {self.island.process.returncode}\n{self.island.output()}")
        if faults := self.island.faults():
            self.fail("the program complained:\n" + "\n".join(faults))
