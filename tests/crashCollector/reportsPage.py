#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Looks at the page of the crash collector as its users do, in a headless Chromium on this machine alone.

    reportsPage.py URL [--screenshots FOLDER] < expected.json

Reads the reports that the page has to show, the newest first, as JSON. Exit code 77: a program is missing.
"""

import argparse
import hashlib
import json
import os
import shutil
import sys
import tempfile
import unittest

try:
    from selenium import webdriver
    from selenium.webdriver.chrome.options import Options
    from selenium.webdriver.chrome.service import Service
    from selenium.webdriver.common.by import By
    from selenium.webdriver.common.keys import Keys
    from selenium.webdriver.support.ui import WebDriverWait
except ImportError:
    webdriver = None

MISSING = 77
PATIENCE = 30  # seconds

url = ""
expected = []
screenshots = None


def browser_options(folder):
    options = Options()
    options.binary_location = shutil.which("chromium")
    for argument in ("--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
                     "--disable-background-networking", "--disable-component-update", "--disable-sync",
                     "--no-proxy-server", "--host-resolver-rules=MAP * ~NOTFOUND, EXCLUDE 127.0.0.1",
                     "--window-size=1280,800", "--user-data-dir=" + os.path.join(folder, "profile")):
        options.add_argument(argument)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
    return options


class ReportsPage(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        cls.downloads = os.path.join(cls.folder.name, "downloads")
        os.mkdir(cls.downloads)
        cls.driver = webdriver.Chrome(service=Service(executable_path=shutil.which("chromedriver")),
                                      options=browser_options(cls.folder.name))
        cls.driver.execute_cdp_cmd("Browser.setDownloadBehavior",
                                   {"behavior": "allow", "downloadPath": cls.downloads})

    @classmethod
    def tearDownClass(cls):
        cls.driver.quit()
        cls.folder.cleanup()

    def setUp(self):
        self.driver.set_window_size(1280, 800)
        self.driver.get(url)

    def cells(self, label):
        return [cell.text for cell in self.driver.find_elements(By.CSS_SELECTOR, 'td[data-label="%s"]' % label)]

    def widths(self):
        return self.driver.execute_script(
            "return [document.documentElement.scrollWidth, document.documentElement.clientWidth]")

    def take_screenshot(self, name):
        if screenshots:
            self.driver.save_screenshot(os.path.join(screenshots, name + ".png"))

    def test_title_language_and_ground(self):
        self.assertEqual(self.driver.title, "Crash reports")
        root = self.driver.find_element(By.TAG_NAME, "html")
        self.assertEqual(root.get_attribute("lang"), "en")
        body = self.driver.find_element(By.TAG_NAME, "body")
        self.assertEqual(body.value_of_css_property("background-color"), "rgba(35, 35, 35, 1)")
        self.take_screenshot("empty" if not expected else "wide")

    def test_reports_are_listed_the_newest_first(self):
        for label, key in (("Product", "product"), ("Version", "version"), ("Platform", "platform")):
            self.assertEqual(self.cells(label), [report[key] for report in expected])
        self.assertEqual(self.cells("SHA-256"), [report["sha256"][:12] + "\u2026" for report in expected])
        codes = self.driver.find_elements(By.TAG_NAME, "code")
        self.assertEqual([code.get_attribute("title") for code in codes], [report["sha256"] for report in expected])

    def test_empty_page_says_so(self):
        text = self.driver.find_element(By.TAG_NAME, "main").text
        self.assertEqual("No report has been received yet." in text, not expected)
        self.assertEqual(len(self.driver.find_elements(By.TAG_NAME, "table")), 1 if expected else 0)

    def test_texts_of_senders_are_no_markup(self):
        self.assertEqual(self.driver.find_elements(By.CSS_SELECTOR, "script, img, main [onmouseover]"), [])
        self.assertEqual(self.driver.title, "Crash reports")

    def test_scripts_are_forbidden(self):
        self.driver.execute_script("""
            const script = document.createElement("script");
            script.textContent = "document.title = 'run'";
            document.body.append(script);
        """)
        self.assertEqual(self.driver.title, "Crash reports")
        self.driver.get_log("browser")  # the browser's complaint about it

    def test_headings_are_those_of_columns(self):
        headings = self.driver.find_elements(By.CSS_SELECTOR, "thead th[scope=col]")
        titles = ["Received", "Product", "Version", "Platform", "Size", "SHA-256", "Archive"]
        self.assertEqual([heading.text for heading in headings], titles if expected else [])

    def test_download_gives_the_same_bytes(self):
        for report, link in zip(expected, self.driver.find_elements(By.LINK_TEXT, "Download"), strict=True):
            link.click()
            path = os.path.join(self.downloads, report["identifier"] + ".zip")
            WebDriverWait(self.driver, PATIENCE).until(lambda driver: os.path.exists(path))
            with open(path, "rb") as file:
                self.assertEqual(hashlib.sha256(file.read()).hexdigest(), report["sha256"])

    def test_keyboard_reaches_the_links_in_order(self):
        for report in expected:
            self.driver.switch_to.active_element.send_keys(Keys.TAB)
            link = self.driver.switch_to.active_element
            self.assertEqual(link.get_attribute("href"), url + "reports/" + report["identifier"] + ".zip")
            self.assertIn(report["product"], link.accessible_name)
            self.assertEqual(link.value_of_css_property("outline-style"), "solid")
        if expected:
            self.take_screenshot("focus")

    def test_narrow_page_needs_no_sideways_scrolling(self):
        self.driver.set_window_size(500, 900)
        scrolled, visible = self.widths()
        self.assertLessEqual(scrolled, visible)
        for link in self.driver.find_elements(By.LINK_TEXT, "Download"):
            self.assertTrue(link.is_displayed())
        self.take_screenshot("narrow" if expected else "empty-narrow")

    def test_narrow_cards_have_labels_and_values_on_one_baseline(self):
        self.driver.set_window_size(420, 900)
        cells = self.driver.find_elements(By.CSS_SELECTOR, "td")
        self.assertEqual(bool(cells), bool(expected))
        self.assertEqual({cell.value_of_css_property("display") for cell in cells}, {"grid"} if expected else set())
        self.assertEqual({cell.value_of_css_property("align-items") for cell in cells},
                         {"baseline"} if expected else set())

    def test_wide_page_needs_no_sideways_scrolling(self):
        scrolled, visible = self.widths()
        self.assertLessEqual(scrolled, visible)

    def test_console_is_silent(self):
        self.driver.get_log("browser")  # forgets what was before
        self.driver.refresh()
        self.assertEqual(self.driver.get_log("browser"), [])


def main():
    global url, expected, screenshots
    parser = argparse.ArgumentParser(description="Looks at the page of the crash collector with a browser.")
    parser.add_argument("url")
    parser.add_argument("--screenshots", help="folder for pictures of the page")
    arguments = parser.parse_args()
    if webdriver is None or not shutil.which("chromium") or not shutil.which("chromedriver"):
        print("Needs python3-selenium, chromium and chromium-driver.")
        return MISSING
    url, screenshots = arguments.url, arguments.screenshots
    expected = json.load(sys.stdin)
    os.environ["no_proxy"] = "127.0.0.1,localhost"  # the driver listens here too
    result = unittest.main(argv=sys.argv[:1], exit=False).result
    return 0 if result.wasSuccessful() and result.testsRun > 0 else 1


if __name__ == "__main__":
    sys.exit(main())
