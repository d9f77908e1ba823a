"""Takes the picture of the page that README.md shows.

picture.py EXERCISE-HOST FILE.png
"""
import sys
import tempfile

from browser import Page, Player, chromium

driver = chromium("en")
with tempfile.TemporaryDirectory() as folder, Player(sys.argv[1], folder, "318") as player:
    driver.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", {"width": 1180, "height": 720, "deviceScaleFactor": 1, "mobile": False})
    page = Page(driver, player.address)
    page.click("ZOR4")
    page.menu("Draw", "Size and Position…")
    page.dialog(width="2 cm")
    page.verdict()
    driver.save_screenshot(sys.argv[2])
driver.quit()
