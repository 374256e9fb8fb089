"""Starting, a second start, and every way to end."""

import signal
import subprocess
import unittest

from case import DesktopTest
from desktop import wait_until


class LifeTest(DesktopTest):
    def assert_gone(self, island):
        self.assertEqual(island.wait_for_exit(), 0, island.output())
        self.assertEqual(island.left_behind(), [])
        self.assertFalse(island.owns_name())

    def test_ends_cleanly(self):
        endings = {
            "SIGTERM": lambda island: island.process.send_signal(signal.SIGTERM),
            "quit": lambda island: island.ctl("action", "quit"),
        }
        for name, end in endings.items():
            with self.subTest(name):
                island = self.start_island()
                self.assertTrue(island.owns_name())
                end(island)
                self.assert_gone(island)

    def test_ends_while_a_hud_is_up(self):
        island = self.start_island()
        island.wait_out_mute()
        self.desktop.set_volume(40)
        island.wait_for_hud(0.4)
        island.process.send_signal(signal.SIGTERM)
        self.assert_gone(island)

    def test_ends_right_after_its_start(self):
        island = self.start_island()
        island.stop()
        again = self.desktop.spawn([str(island.program)], "early.log")
        wait_until(lambda: island.owns_name() or again.poll() is not None, what="the name on the bus")
        again.send_signal(signal.SIGTERM)
        self.assertEqual(again.wait(10), 0, self.desktop.log("early.log"))

    def test_ends_with_its_display(self):
        # The library under us ends the process on the spot when the display goes: whatever lives on
        # the stack of main() is then never taken down, which is no leak.
        self.desktop.env["ASAN_OPTIONS"] = self.desktop.env.get("ASAN_OPTIONS", "") + ":detect_leaks=0"
        island = self.start_island()
        self.desktop.kill_display()
        island.wait_for_exit()
        self.assertEqual(island.left_behind(), [])
        self.assertFalse(island.owns_name())

    def test_a_second_start_hands_over(self):
        island = self.start_island()
        for arguments in ([], ["file:///tmp/a"]):
            second = subprocess.run(
                [str(island.program), *arguments], env=self.desktop.env, capture_output=True, text=True, timeout=10,
                check=False,
            )  # fmt: skip
            self.assertEqual(second.returncode, 0, second.stderr)
        self.assertTrue(island.is_alive())
        self.assertTrue(island.owns_name())

    def test_answers_about_itself_without_a_display(self):
        program = self.start_island().program
        env = {key: value for key, value in self.desktop.env.items() if key != "DISPLAY"}
        for option, text in {"--version": "0.1.0", "--help": "Usage"}.items():
            answer = subprocess.run(
                [str(program), option], env=env, capture_output=True, text=True, timeout=10, check=False
            )
            self.assertEqual(answer.returncode, 0, answer.stderr)
            self.assertIn(text, answer.stdout)


if __name__ == "__main__":
    unittest.main(verbosity=2)
