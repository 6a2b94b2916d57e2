"""A headless Chromium, driven by the W3C WebDriver protocol over plain HTTP."""

import base64
import http.client
import json
import re
import subprocess
import tempfile

ELEMENT = "element-6066-11e4-a52e-4f735466cecf"
KEYS = {"Tab": "\ue004", "Enter": "\ue007", "Space": " ", "Escape": "\ue00c", "Left": "\ue012", "Up": "\ue013",
        "Right": "\ue014", "Down": "\ue015"}
ARGUMENTS = ["--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--hide-scrollbars",
             "--disable-background-networking", "--disable-component-update", "--disable-sync",
             "--force-device-scale-factor=1", "--window-size=1400,900"]


class Browser:
    """One session; ends with its `with` block."""

    def __init__(self, driver, browser):
        self.profile = tempfile.TemporaryDirectory()
        self.process = subprocess.Popen([driver, "--port=0"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self.port = self.read_port()
        options = {"binary": browser, "args": ARGUMENTS + ["--user-data-dir=" + self.profile.name]}
        wanted = {"browserName": "chrome", "goog:chromeOptions": options, "goog:loggingPrefs": {"browser": "ALL"}}
        self.session = ""
        started = self.call("POST", "/session", {"capabilities": {"alwaysMatch": wanted}})
        self.session = "/session/" + started["sessionId"]

    def read_port(self):
        for line in self.process.stdout:
            found = re.search(r"started successfully on port (\d+)", line)
            if found:
                return int(found.group(1))
        raise RuntimeError("the driver did not start")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        try:
            self.call("DELETE", "")
        finally:
            self.process.terminate()
            self.process.wait()
            self.process.stdout.close()
            self.profile.cleanup()

    def call(self, method, path, body=None):
        connection = http.client.HTTPConnection("127.0.0.1", self.port, timeout=120)
        try:
            text = None if method in ("GET", "DELETE") else json.dumps(body or {})
            connection.request(method, self.session + path, text, {"Content-Type": "application/json"})
            value = json.loads(connection.getresponse().read())["value"]
        finally:
            connection.close()
        if isinstance(value, dict) and "error" in value:
            raise RuntimeError(f"{value['error']}: {value['message']}")
        return value

    def open(self, path):
        self.call("POST", "/url", {"url": "file://" + path})

    def run(self, script, *arguments):
        """What the body of a function returns in the page."""
        return self.call("POST", "/execute/sync", {"script": script, "args": list(arguments)})

    def find(self, selector):
        return self.call("POST", "/element", {"using": "css selector", "value": selector})

    def click(self, selector):
        self.call("POST", f"/element/{self.find(selector)[ELEMENT]}/click")

    def press(self, *keys):
        """Keys by name or letter, one after another, for what has the focus."""
        strokes = []
        for key in keys:
            value = KEYS.get(key, key)
            strokes += [{"type": "keyDown", "value": value}, {"type": "keyUp", "value": value}]
        self.act([{"type": "key", "id": "keyboard", "actions": strokes}])

    def mouse(self, *steps):
        """Steps are (x, y) to move to, "down" and "up"."""
        names = {"down": "pointerDown", "up": "pointerUp"}
        actions = [{"type": names[step], "button": 0} if isinstance(step, str) else
                   {"type": "pointerMove", "x": round(step[0]), "y": round(step[1]), "duration": 20} for step in steps]
        self.act([{"type": "pointer", "id": "mouse", "actions": actions}])

    def pinch(self, x, y, before, after):
        """Two fingers on a level, so far from their middle before and after."""
        def finger(name, side):
            return {"type": "pointer", "id": name, "parameters": {"pointerType": "touch"}, "actions": [
                {"type": "pointerMove", "x": round(x + side * before), "y": round(y), "duration": 0},
                {"type": "pointerDown", "button": 0},
                {"type": "pointerMove", "x": round(x + side * after), "y": round(y), "duration": 200},
                {"type": "pointerUp", "button": 0}]}
        self.act([finger("left", -1), finger("right", 1)])

    def wheel(self, x, y, by):
        self.act([{"type": "wheel", "id": "wheel", "actions": [
            {"type": "scroll", "x": round(x), "y": round(y), "deltaX": 0, "deltaY": by}]}])

    def act(self, sources):
        self.call("POST", "/actions", {"actions": sources})
        self.call("DELETE", "/actions")

    def media(self, media="", scheme="light"):
        """Shows the page as on paper ("print") or on a dark or light screen."""
        features = [{"name": "prefers-color-scheme", "value": scheme}]
        self.call("POST", "/goog/cdp/execute",
                  {"cmd": "Emulation.setEmulatedMedia", "params": {"media": media, "features": features}})

    def pdf(self):
        return base64.b64decode(self.call("POST", "/print", {"background": True}))

    def screenshot(self, path):
        with open(path, "wb") as file:
            file.write(base64.b64decode(self.call("GET", "/screenshot")))

    def complaints(self):
        """What the page wrote to its console since it was asked last."""
        return [entry["message"] for entry in self.call("POST", "/se/log", {"type": "browser"})]
