"""The pages that `orvcad draw --format html` makes, looked at and used in a browser.

usage: test_pages.py --orvcad PROGRAM --buildings DIR [--browser CHROMIUM] [--driver CHROMEDRIVER] [unittest arguments]
"""

import argparse
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

from webdriver import Browser

OPTIONS = None
SKIPPED = 77  # exit code by which ctest tells a test that was left out
HOSTILE = "</script><b>&amp;\"' {{plans}} \u2028"


def orvcad(*arguments, exit_code=0):
    done = subprocess.run([OPTIONS.orvcad, *arguments], capture_output=True, text=True, check=False)
    if done.returncode != exit_code:
        raise AssertionError(f"orvcad {' '.join(arguments)}: exit code {done.returncode}: {done.stderr}")
    return done.stdout


def building(name):
    with open(os.path.join(OPTIONS.buildings, name + ".json"), encoding="utf-8") as file:
        return json.load(file)


def elements_of(content):
    return [element for region in content["regions"] for floor in region["floors"] for element in floor["elements"]]


class PageTest(unittest.TestCase):
    """Makes pages in a directory of its own, all looked at in one browser."""

    @classmethod
    def setUpClass(cls):
        cls.directory = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.directory.cleanup)
        cls.browser = Browser(OPTIONS.driver, OPTIONS.browser)
        cls.addClassCleanup(cls.browser.__exit__)

    def tearDown(self):
        self.assertEqual(self.browser.complaints(), [])
        self.browser.media()

    @classmethod
    def path(cls, name):
        return os.path.join(cls.directory.name, name)

    @classmethod
    def project(cls, content, name):
        with open(cls.path("building.json"), "w", encoding="utf-8") as file:
            json.dump(content, file)
        orvcad("project", "import", cls.path("building.json"), "-o", cls.path(name))
        return cls.path(name)

    @classmethod
    def page(cls, project, *options):
        orvcad("draw", project, *options, "-o", cls.path("page.html"))
        return cls.path("page.html")

    def run_in_page(self, script, *arguments):
        return self.browser.run(script, *arguments)

    def details(self):
        return self.run_in_page("return document.querySelector('#details').innerText")

    def title(self):
        return self.run_in_page("return document.querySelector('#details h2').textContent")

    def view(self):
        """x, y, width and height of what the plan shows."""
        text = self.run_in_page("return document.querySelector('.floor:not([hidden]) svg').getAttribute('viewBox')")
        return [float(part) for part in text.split()]

    def shown_floors(self):
        return self.run_in_page("return [...document.querySelectorAll('.floor')].filter((each) => each.getClientRects().length > 0)"
                                ".map((f) => f.id)")

    def middle_of_plan(self):
        return self.run_in_page("const r = document.querySelector('.floor:not([hidden]) svg').getBoundingClientRect();"
                                "return [r.x + r.width / 2, r.y + r.height / 2]")


class OneProjectTest(PageTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.house = cls.page(cls.project(building("masonry-block"), "house.hbxdb"))

    def setUp(self):
        self.browser.open(self.house)

    def test_nothing_is_fetched(self):
        self.assertEqual(self.run_in_page("return performance.getEntriesByType('resource').length"), 0)

    def test_floors_are_chosen_by_mouse_and_keyboard(self):
        self.assertEqual(len(self.shown_floors()), 1)
        self.browser.click("#floors label:nth-of-type(1)")
        self.assertEqual(self.shown_floors(), ["floor-0"])
        self.run_in_page("document.querySelector('#floors input').focus()")
        self.browser.press("Down")
        self.assertEqual(self.shown_floors(), ["floor-1"])
        self.browser.press("Up")
        self.assertEqual(self.shown_floors(), ["floor-0"])

    def test_layers_are_switched_by_type(self):
        shown = "return [...document.querySelectorAll('.floor:not([hidden]) .type-1003 path')]" \
                ".filter((each) => each.getClientRects().length > 0).length"
        before = self.run_in_page(shown)
        self.assertGreater(before, 10)
        self.browser.click("#layers .type-1003 input")
        self.assertEqual(self.run_in_page(shown), 0)
        names = "return [...document.querySelectorAll('.floor:not([hidden]) [data-t=\"1003\"]')]" \
                ".filter((each) => each.getClientRects().length > 0).length"
        self.assertEqual(self.run_in_page(names), 0)
        self.browser.click("#layers .type-1003 input")
        self.assertEqual(self.run_in_page(shown), before)
        self.browser.click("#layers .buttons button:last-child")
        self.assertEqual(self.run_in_page("return [...document.querySelectorAll('.floor .o')]"
                                          ".filter((each) => each.getClientRects().length > 0).length"), 0)

    def test_click_shows_properties_and_click_beside_clears_them(self):
        x, y, name = self.run_in_page(
            "const floor = document.querySelector('.floor:not([hidden])');"
            "for (const o of floor.querySelectorAll('.type-1003 .o')) { const r = o.getBoundingClientRect();"
            " const x = r.x + r.width / 2, y = r.y + r.height / 2;"
            " if (document.elementFromPoint(x, y)?.closest('.o') === o) return [x, y, o.getAttribute('aria-label')]; }")
        self.browser.mouse((x, y), "down", "up")
        self.assertEqual(self.title(), name)
        self.assertIn("Thickness", self.details())
        corner = self.run_in_page("const r = document.querySelector('.floor:not([hidden]) svg').getBoundingClientRect();"
                                  "return [r.x + 4, r.y + r.height - 4]")
        self.browser.mouse(corner, "down", "up")
        self.assertEqual(self.title(), "Nothing selected")

    def test_keyboard_reaches_objects_and_selects_them(self):
        self.run_in_page("document.querySelector('.floor:not([hidden]) svg').focus()")
        self.browser.press("Tab", "Tab")
        label = self.run_in_page("return document.activeElement.getAttribute('aria-label')")
        self.assertTrue(self.run_in_page("return document.activeElement.matches('.o:focus-visible')"))
        self.assertNotEqual(self.run_in_page("return getComputedStyle(document.activeElement).outlineStyle"), "none")
        self.browser.press("Enter")
        self.assertEqual(self.title(), label)
        self.browser.press("Escape")
        self.assertEqual(self.title(), "Nothing selected")
        self.browser.press("Space")
        self.assertEqual(self.title(), label)

    def test_plan_moves_and_zooms(self):
        whole = self.view()
        x, y = self.middle_of_plan()
        self.browser.wheel(x, y, -300)
        near = self.view()
        self.assertLess(near[2], whole[2] * 0.7)
        self.browser.mouse((x, y), "down", (x + 60, y + 30), (x + 120, y + 60), "up")
        moved = self.view()
        self.assertLess(moved[0], near[0])
        self.assertLess(moved[1], near[1])
        self.assertEqual(self.title(), "Nothing selected")
        self.browser.pinch(x, y, 60, 180)
        self.assertLess(self.view()[2], moved[2] * 0.6)
        self.run_in_page("document.querySelector('.floor:not([hidden]) svg').focus()")
        before = self.view()
        self.browser.press("Right", "Down", "+")
        after = self.view()
        self.assertLess(after[2], before[2])
        self.assertGreater(after[0], before[0])
        self.browser.press("0")
        self.assertEqual(self.view(), whole)
        self.browser.click(".tools button:first-child")
        self.assertLess(self.view()[2], whole[2])
        self.browser.click(".tools button:last-child")
        self.assertEqual(self.view(), whole)

    def test_search_finds_elements_on_all_floors(self):
        name = next(each["name"] for each in elements_of(building("masonry-block")) if each.get("drawObjects"))
        self.browser.click("#search")
        self.browser.press(*name.lower())
        self.assertIn(" found", self.run_in_page("return document.querySelector('[role=search] [role=status]').textContent"))
        whole = self.view()
        self.browser.press("Enter")
        self.assertTrue(self.title().endswith(name), self.title())
        self.assertNotEqual(self.view(), whole)
        self.assertEqual(self.run_in_page("return document.querySelectorAll('.o.selected').length"), 1)
        self.browser.click("#search")
        self.browser.press("x", "q", "z")
        self.assertEqual(self.run_in_page("return document.querySelectorAll('#hits li').length"), 0)

    def test_paper_has_one_floor_a_page_and_no_controls(self):
        floors = self.run_in_page("return document.querySelectorAll('.floor').length")
        self.browser.click(".tools button:first-child")
        self.assertEqual(len(re.findall(rb"/Type /Page\b", self.browser.pdf())), floors)
        self.browser.media("print")
        self.assertEqual(len(self.shown_floors()), floors)
        self.assertEqual(self.run_in_page("return [...document.querySelectorAll('nav, aside, .tools, button, input')]"
                                          ".filter((each) => each.getClientRects().length > 0).length"), 0)

    def test_dark_screens_get_a_dark_plan(self):
        ground = "return getComputedStyle(document.querySelector('main')).backgroundColor"
        self.assertEqual(self.run_in_page(ground), "rgb(255, 255, 255)")
        self.browser.media(scheme="dark")
        self.assertEqual(self.run_in_page(ground), "rgb(20, 24, 29)")

    def test_everything_that_is_pressed_has_a_name(self):
        nameless = self.run_in_page(
            "return [...document.querySelectorAll('button, input, .o, svg[tabindex]')].filter((each) =>"
            " !(each.getAttribute('aria-label') || each.textContent.trim() || each.closest('label') || each.labels?.length)"
            " && each.closest('section:not([hidden]), nav, .tools')).length")
        self.assertEqual(nameless, 0)


class TwoProjectsTest(PageTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        before = cls.project(building("duplex-apartment"), "before.hbxdb")
        content = building("duplex-apartment")
        floor = max(content["regions"][0]["floors"], key=lambda each: len(each["elements"]))
        walls = [each for each in floor["elements"] if each["type"] in (1003, 2) and len(each["drawObjects"]) > 1]
        attached = json.dumps(content)
        gone = next(each for each in reversed(walls) if f'"{each["name"]}"' not in attached.replace(
            f'"name": "{each["name"]}"', ""))
        floor["elements"].remove(gone)
        cls.gone = (gone["name"], len(gone["drawObjects"]))
        slab = next(each for each in elements_of(content) if each["type"] == 19)
        slab["properties"]["Thickness"] += 30
        cls.changed = (slab["name"], len(slab["drawObjects"]))
        floor["elements"].append({"name": "KZ-new", "type": 25, "drawObjects": [{"shape": {
            "kind": "point", "outline": "POLYGON((-300 -300, 300 -300, 300 300, -300 300, -300 -300))",
            "insertPoint": [3000, -3000]}}]})
        after = cls.project(content, "after.hbxdb")
        cls.compared = cls.page(before, "--against", after)

    def setUp(self):
        self.browser.open(self.compared)

    def marked(self, state):
        return self.run_in_page("return document.querySelectorAll(`.o[data-d=${arguments[0]}]`).length", state)

    def test_added_gone_and_changed_are_marked(self):
        self.assertEqual(self.marked("added"), 1)
        self.assertEqual(self.marked("gone"), self.gone[1])
        self.assertEqual(self.marked("changed"), self.changed[1])

    def test_each_has_a_colour_and_another_sign(self):
        looks = self.run_in_page(
            "return ['added', 'gone', 'changed'].map((state) => {"
            " const look = getComputedStyle(document.querySelector(`.o[data-d=${state}] path`));"
            " return [look.stroke, look.strokeDasharray, look.fill]; })")
        for signs in zip(*looks):
            self.assertEqual(len(set(signs)), 3, signs)

    def test_list_is_walked_through(self):
        entries = self.run_in_page("return [...document.querySelectorAll('#differences ol button')].map((b) => b.innerText)")
        self.assertEqual(len(entries), 3)
        found = []
        for _ in entries:
            self.browser.click("#next")
            found.append(self.title())
            self.assertEqual(self.run_in_page("return document.querySelectorAll('.o.selected').length > 0"), True)
        self.assertEqual(sorted(name.split()[-1] for name in found),
                         sorted(name.split()[-1] for name in ("KZ-new", self.gone[0], self.changed[0])))
        self.browser.click("#next")
        self.assertEqual(self.title(), found[0])
        self.browser.click("#previous")
        self.assertEqual(self.title(), found[-1])

    def test_change_is_told_from_what_to_what(self):
        self.run_in_page("document.querySelector('#differences ol .state-changed').focus()")
        self.browser.press("Enter")
        self.assertIn("properties.Thickness", self.details())
        self.assertEqual(self.run_in_page("return document.querySelectorAll('#details .changes tbody tr').length"), 1)


class HostileNamesTest(PageTest):
    def test_names_that_look_like_markup_are_texts(self):
        content = building("duplex-apartment")
        content["name"] = content["source"] = HOSTILE
        content["regions"][0]["name"] = HOSTILE
        content["regions"][0]["floors"][0]["name"] = HOSTILE
        slab = next(each for each in elements_of(content) if each["type"] == 19)
        slab["name"] = HOSTILE
        self.browser.open(self.page(self.project(content, "hostile.hbxdb")))
        self.assertEqual(self.run_in_page("return document.querySelector('h1').textContent"), HOSTILE)
        self.assertEqual(self.run_in_page("return document.querySelectorAll('b').length"), 0)
        self.assertEqual(self.run_in_page("return document.querySelectorAll('script').length"), 2)
        self.browser.click("#search")
        self.browser.press(*"script>")
        self.browser.press("Enter")
        self.assertEqual(self.title(), "slab " + HOSTILE)


def main():
    global OPTIONS
    parser = argparse.ArgumentParser()
    parser.add_argument("--orvcad", required=True)
    parser.add_argument("--buildings", required=True)
    parser.add_argument("--browser", default="chromium")
    parser.add_argument("--driver", default="chromedriver")
    OPTIONS, rest = parser.parse_known_args()
    for name in ("browser", "driver"):
        program = shutil.which(getattr(OPTIONS, name))
        if not program:
            print(f"{getattr(OPTIONS, name)} is not there")
            sys.exit(SKIPPED)
        setattr(OPTIONS, name, program)
    unittest.main(argv=[sys.argv[0], *rest])


if __name__ == "__main__":
    main()
