"""An exercise played in headless Chromium, by mouse and keyboard alone; of the page nothing is called, it is only looked at."""
import os
import re
import subprocess

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys
from selenium.webdriver.support.ui import Select, WebDriverWait

CONTROL = Keys.CONTROL
SHIFT = Keys.SHIFT


def chromium(language="fr"):
    options = webdriver.ChromeOptions()
    for option in ("--headless=new", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--window-size=1280,860",
                   f"--accept-lang={language}"):
        options.add_argument(option)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
    return webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)


class Player:
    """`exercise-host play`, running in a folder."""

    def __init__(self, host, folder, *arguments, **environment):
        self.process = subprocess.Popen([os.path.abspath(host), "play", *arguments], stdout=subprocess.PIPE, text=True, cwd=folder,
                                        env={**os.environ, **environment})
        self.address = next(re.search(r"http\S+", line)[0] for line in self.process.stdout if "http" in line)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait(20)


class Page:
    def __init__(self, driver, address):
        self.driver = driver
        driver.get(address)
        self.wait("#slide .picture svg")

    def wait(self, selector):
        WebDriverWait(self.driver, 20, 0.05).until(lambda _: self.all(selector))

    def all(self, selector):
        return self.driver.find_elements(By.CSS_SELECTOR, selector)

    def one(self, selector):
        return self.driver.find_element(By.CSS_SELECTOR, selector)

    def texts(self, selector):
        return [each.text for each in self.all(selector) if each.is_displayed()]

    def settle(self):
        WebDriverWait(self.driver, 20, 0.02).until(lambda _: self.one("body").get_attribute("aria-busy") != "true")

    def statements(self):
        return self.driver.execute_script("return [...document.querySelectorAll('#statements li')].map((each) => each.textContent)")

    def pixel(self, point):
        """A place on the slide, in points, as it lies in the window."""
        left, top, scale = self.driver.execute_script(
            "const slide = document.querySelector('#slide'); const frame = slide.getBoundingClientRect();"
            "return [frame.left, frame.top, slide.clientWidth / slide.querySelector('.overlay').viewBox.baseVal.width]")
        return round(left + point[0] * scale), round(top + point[1] * scale)

    def middle(self, mark):
        """The middle of a marked shape, in points; a place stands for itself."""
        if not isinstance(mark, str):
            return mark
        return self.driver.execute_script(
            "const option = document.querySelector(`#slide [data-mark=${arguments[0]}]`), slide = document.querySelector('#slide');"
            "const scale = slide.querySelector('.overlay').viewBox.baseVal.width / slide.clientWidth;"
            "return [(option.offsetLeft + option.offsetWidth / 2) * scale, (option.offsetTop + option.offsetHeight / 2) * scale]", mark)

    def pointer(self, *points, keys=(), double=False):
        """Goes to the first place; draws from it through the others, or clicks there."""
        for key in keys:
            ActionChains(self.driver).key_down(key).perform()
        chain = ActionChains(self.driver, duration=20)
        pixels = [self.pixel(self.middle(point)) for point in points]
        mouse = chain.w3c_actions.pointer_action
        mouse.move_to_location(*pixels[0])
        for _ in range(2 if double else 1):
            mouse.pointer_down()
            for pixel in pixels[1:]:
                mouse.move_to_location(*pixel)
            mouse.pointer_up()
        chain.perform()
        for key in keys:
            ActionChains(self.driver).key_up(key).perform()
        self.settle()

    def click(self, place, *keys):
        self.pointer(place, keys=keys)

    def double(self, place):
        self.pointer(place, double=True)

    def drag(self, *places, keys=()):
        self.pointer(*places, keys=keys)

    def press(self, *keys):
        """Keys in turn; a tuple is a chord."""
        for key in keys:
            chain = ActionChains(self.driver)
            chord = key if isinstance(key, tuple) else (key,)
            for held in chord[:-1]:
                chain.key_down(held)
            chain.send_keys(chord[-1])
            for held in reversed(chord[:-1]):
                chain.key_up(held)
            chain.perform()
        self.settle()

    def type(self, text):
        ActionChains(self.driver).send_keys(text).perform()
        self.settle()

    def tool(self, command):
        self.one(f"[data-command={command}]").click()
        self.settle()

    def menu(self, menu, item):
        def named(selector, name):
            return next(each for each in self.all(selector) if name in (each.text.split("\n")[0], each.get_attribute("aria-label")))

        named("#menus button, #drawing button, #bars button", menu).click()
        named("[role=menu] [role=menuitem]", item).click()
        self.settle()

    def dialog(self, **values):
        for name, value in values.items():
            field = self.one(f"dialog [name={name}]")
            if field.tag_name == "select":
                Select(field).select_by_value(value)
            elif isinstance(value, bool):
                if field.is_selected() != value:
                    field.click()
            else:
                field.clear()
                field.send_keys(value)
        self.one("dialog [value=ok]").click()
        self.settle()

    def do(self, name):
        self.one(f"#do-{name}").click()
        self.settle()

    def verdict(self):
        """What the page says: whether it is a success, and the letter."""
        self.do("check")
        box = self.one("#verdict")
        letters = box.find_elements(By.CSS_SELECTOR, ".letter")
        return "passed" in box.get_attribute("class"), letters[0].text if letters else ""
