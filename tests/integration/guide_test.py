"""The guide as a screen reader and the keyboard have it: its contents, its search, its links, and the
"?" of the preferences.

Usage: guide_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

from program import ProgramTest, run_tests


class GuideTest(ProgramTest):
    def open_guide(self):
        """Connected, and the guide in front, at its contents; its window and both programs."""
        keyer, quorvel, window = self.start_connected()
        self.desktop.press("alt+h")
        quorvel.wait_for("the menu", lambda: any(
            "menu item" in each.role() and each.is_in_state("showing")
            for each in window.all() if each.name() == "Guide"))
        self.desktop.press("g")
        return keyer, quorvel, self.guide(quorvel)

    def guide(self, quorvel):
        """Once it has the keyboard."""
        quorvel.wait_for("the guide", lambda: "Quorvel Guide" in self.desktop.active_title())
        application = self.desktop.application(quorvel.pid)
        return next(each for each in application.children() if each.name() == "Quorvel Guide")

    def wait_for_page(self, quorvel, guide, title):
        def has_turned():
            page = next((each for each in guide.all() if each.name() == title and each.text()), None)
            return page is not None and page.text().lstrip().startswith(title)
        quorvel.wait_for(title, has_turned)

    def wait_for_result(self, quorvel, guide, result):
        quorvel.wait_for(result, lambda: any(
            each.name() == result and each.is_in_state("showing") for each in guide.all()))

    def focused(self, guide):
        return next((each.name() for each in guide.all() if each.is_in_state("focused")), None)

    def end(self, keyer, quorvel, guide):
        """Closes it by Escape; nothing was keyed."""
        self.desktop.press("Escape")
        quorvel.wait_for("the guide to close", lambda: not guide.is_in_state("showing"))
        self.assertEqual(keyer.keyed(), "")
        self.terminate(keyer, quorvel)

    def test_the_contents_lead_to_every_chapter(self):
        keyer, quorvel, guide = self.open_guide()
        contents = guide.find("Contents")
        titles = [each.name() for each in contents.children()]
        self.assertIn("Tune safely", titles)
        self.assertGreater(len(titles), 15)
        self.wait_for_page(quorvel, guide, titles[0])
        for title in titles[1:4]:
            self.desktop.press("Down")
            self.wait_for_page(quorvel, guide, title)
        self.desktop.press("End")
        self.wait_for_page(quorvel, guide, titles[-1])
        self.end(keyer, quorvel, guide)

    def test_the_search_goes_from_place_to_place(self):
        keyer, quorvel, guide = self.open_guide()
        self.desktop.press("ctrl+f")
        quorvel.wait_for("the field", lambda: self.focused(guide) == "Search")
        self.desktop.type("dummy load")
        self.wait_for_result(quorvel, guide, "Places found: 1")
        self.desktop.press("Return")
        self.wait_for_result(quorvel, guide, "Place 1 of 1")
        self.wait_for_page(quorvel, guide, "Tune safely")
        self.desktop.press("ctrl+a")
        self.desktop.type("beacon")
        quorvel.wait_for("the places", lambda: guide.find("Places found").is_in_state("showing")
                         and len(guide.find("Places found").children()) >= 5)
        count = len(guide.find("Places found").children())
        self.desktop.press("Return")
        self.desktop.press("Return")
        self.wait_for_result(quorvel, guide, f"Place 2 of {count}")
        self.desktop.press("shift+Return")
        self.wait_for_result(quorvel, guide, f"Place 1 of {count}")
        self.desktop.press("ctrl+a")
        self.desktop.type("xyzzy")
        self.wait_for_result(quorvel, guide, "Nothing found")
        self.assertEqual(self.focused(guide), "Search")
        self.end(keyer, quorvel, guide)

    def test_a_link_is_followed_and_left_by_keys(self):
        keyer, quorvel, guide = self.open_guide()
        self.desktop.press("Tab")
        quorvel.wait_for("the page", lambda: self.focused(guide) == "First start")
        self.desktop.press("Tab")
        self.desktop.press("Return")
        self.wait_for_page(quorvel, guide, "The window")
        self.desktop.press("alt+Left")
        self.wait_for_page(quorvel, guide, "First start")
        self.end(keyer, quorvel, guide)

    def test_the_question_mark_of_a_page_opens_its_chapter(self):
        keyer, quorvel, window = self.start_connected()
        self.desktop.press("ctrl+comma")
        quorvel.wait_for("the preferences", lambda: "General" in self.desktop.active_title())
        application = self.desktop.application(quorvel.pid)
        for pane, chapter in (("General", "Preferences"), ("Messages", "Messages and tokens"),
                              ("WinKeyer", "Keyer settings: Keying")):
            preferences = next(each for each in application.children()
                               if each.find("Guide to these settings") is not None
                               or each.name() == "General")
            preferences.find(pane).press()
            quorvel.wait_for(pane, lambda: any(
                each.name() == pane and each.find("Guide to these settings") is not None
                for each in application.children()))
            shown = next(each for each in application.children() if each.name() == pane)
            shown.find("Guide to these settings").press()
            guide = self.guide(quorvel)
            self.wait_for_page(quorvel, guide, chapter)
            self.desktop.press("Escape")
            quorvel.wait_for("the guide to close", lambda: not guide.is_in_state("showing"))
        self.assertEqual(keyer.keyed(), "")
        self.terminate(keyer, quorvel)


if __name__ == "__main__":
    run_tests()
