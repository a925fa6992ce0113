"""A few hundred of the cases that `./dev prove` tries by the thousand: programs that are killed,
disks that fail, power that goes."""

import random
import unittest

import checks
import screens
from scenarios import AGAIN, EVERYTHING, Workshop

SEED = 20260314


class Reliability(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.workshop = Workshop()
        cls.addClassCleanup(cls.workshop.__exit__)

    def setUp(self):
        self.dice = random.Random(SEED)
        self.tally = checks.Tally()

    def tearDown(self):
        print(self.tally)

    def for_each_scenario(self, check):
        for scenario in EVERYTHING:
            with self.subTest(scenario.name):
                tally = checks.Tally()
                scenario.set_up(self.workshop)
                check(scenario, tally)
                self.tally.add(tally)
                self.assertTrue(tally.total(), "nothing was tried")
                self.assertFalse(tally.broken, "\n".join(tally.broken))


class Kills(Reliability):
    def test_at_a_step_leave_the_old_or_the_new(self):
        self.for_each_scenario(
            lambda scenario, tally: checks.kill_at_steps(
                self.workshop, scenario, tally, checks.some_ways(self.dice, 0.25)
            )
        )

    def test_at_random_leave_the_old_or_the_new(self):
        self.for_each_scenario(
            lambda scenario, tally: checks.kill_at_random(
                self.workshop, scenario, tally, self.dice, 2
            )
        )

    def test_while_saving_lose_nothing_that_was_told_to_be_saved(self):
        checks.kill_while_saving(self.workshop, self.tally, self.dice, 60)
        self.assertFalse(self.tally.broken, "\n".join(self.tally.broken))


class Failures(Reliability):
    def test_of_the_disk_are_told_and_leave_the_old(self):
        self.for_each_scenario(
            lambda scenario, tally: checks.fail_at_steps(
                self.workshop, scenario, tally, checks.some_ways(self.dice, 0.4)
            )
        )


    def test_that_were_one_step_each_are_no_other_program(self):
        AGAIN.set_up(self.workshop)
        checks.fail_at_steps(
            self.workshop, AGAIN, self.tally, lambda _: ("error",), ways=("error",)
        )
        self.assertGreater(self.tally.total(), 10)
        self.assertFalse(self.tally.broken, "\n".join(self.tally.broken))


class PulledPlug(Reliability):
    def test_leaves_the_old_or_the_new(self):
        self.for_each_scenario(
            lambda scenario, tally: checks.pull_plug(
                self.workshop, scenario, tally, self.dice, tries=1, share=0.05
            )
        )


class Screens(Reliability):
    def test_lose_nothing_that_they_said_was_saved(self):
        screens.kill_while_working(self.workshop, self.tally, self.dice, 15)
        self.assertFalse(self.tally.broken, "\n".join(self.tally.broken))


if __name__ == "__main__":
    unittest.main(verbosity=2)
