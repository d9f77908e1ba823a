"""What others than the page's author may try, and what they are told; and how an exercise ends."""
import http.client
import json
import os
import pathlib
import signal
import socket
import subprocess
import tempfile
import urllib.parse

from browser import Page, Player


class Client:
    """Asks as a page would, or as one that is none."""

    def __init__(self, address):
        parts = urllib.parse.urlsplit(address)
        self.host, self.port, self.path = parts.netloc, parts.port, parts.path
        self.seat = ""

    def ask(self, method, name, body=None, path=None, **headers):
        headers = {"Host": self.host, **({"Origin": f"http://{self.host}"} if method == "POST" else {}), **headers}
        connection = http.client.HTTPConnection("127.0.0.1", self.port, timeout=20)
        connection.putrequest(method, (path or self.path) + name, skip_host=True, skip_accept_encoding=True)
        content = (body if isinstance(body, str) else json.dumps(body or {})).encode()
        for header, value in {**headers, "Content-Length": str(len(content))}.items():
            if value is not None:
                connection.putheader(header, value)
        try:
            connection.endheaders(content)
        except OSError:
            pass  # it was refused before all was sent
        answer = connection.getresponse()
        text = answer.read().decode()
        return answer.status, text

    def order(self, name, **body):
        status, text = self.ask("POST", name, {"seat": self.seat, **body})
        return status, json.loads(text)

    def raw(self, data):
        with socket.create_connection(("127.0.0.1", self.port), timeout=20) as connection:
            connection.sendall(data)
            return connection.recv(100_000).decode()


def refusals(check, client):
    """Each is refused with a reason, and the exercise is as it was."""
    secret = client.path.strip("/")
    foreign = "http://evil.example"
    seated = {"seat": client.seat}
    cases = [
        ("no secret", 403, "secret", ("GET", "", None, "/")),
        ("a wrong secret", 403, "secret", ("GET", "", None, f"/{'0' * len(secret)}/")),
        ("half of the secret", 403, "secret", ("GET", "", None, f"/{secret[:16]}/")),
        ("a request without secret", 403, "secret", ("POST", "state", seated, "/")),
        ("a file beside the page", 404, "no such", ("GET", "../../../../etc/passwd")),
        ("a page that is none", 404, "no such", ("GET", "other.js")),
        ("another method", 405, "GET", ("PUT", "state", seated)),
        ("JSON that is none", 400, "malformed", ("POST", "state", "{")),
        ("JSON without seat", 400, "malformed", ("POST", "state", {})),
        ("a seat of another type", 400, "malformed", ("POST", "state", {"seat": [1]})),
        ("a very deep JSON", 400, "malformed", ("POST", "state", "[" * 60_000)),
        ("statements of another type", 400, "malformed", ("POST", "do", {**seated, "statements": {"a": 1}})),
        ("an order that is none", 404, "no such", ("POST", "format", seated)),
        ("another tab", 409, "another tab", ("POST", "join", {})),
        ("another tab's gesture", 409, "another tab", ("POST", "do", {"seat": "0" * 16, "statements": ["ActivePresentation.Close"]})),
        ("too much", 413, "too large", ("POST", "do", "x" * 1_000_000)),
    ]
    headers = [
        ("another host", 421, "only", ("GET", ""), {"Host": "evil.example"}),
        ("another name of this host", 421, "only", ("GET", ""), {"Host": f"localhost:{client.port}"}),
        ("no host", 421, "only", ("GET", ""), {"Host": None}),
        ("a page of elsewhere", 403, "own page", ("POST", "state", seated), {"Origin": foreign}),
        ("a page of elsewhere that reads", 403, "own page", ("GET", ""), {"Origin": foreign}),
        ("a page of nowhere", 403, "own page", ("POST", "state", seated), {"Origin": "null"}),
        ("nobody's page", 403, "own page", ("POST", "state", seated), {"Origin": None}),
        ("a long header", 431, "header", ("GET", ""), {"X-Long": "x" * 20_000}),
    ]
    before = client.order("state")[1]["state"]
    for name, status, reason, arguments, more in [(*case, {}) for case in cases] + headers:
        found = client.ask(*arguments, **more)
        check(f"refused: {name}", "" if found[0] == status and reason in found[1] else found)
    for data in (b"garbage\r\n\r\n", b"GET / HTTP/1.1\r\nbad header\r\n\r\n", b"\x16\x03\x01\x02\x00\x01\x00\x01\xfc\x03\x03" + b"\x00" * 600):
        found = client.raw(data)
        check(f"refused: {data[:12]}", "" if " 400 " in found.split("\r\n")[0] else found)
    check("the exercise is unharmed", "" if client.order("state")[1]["state"] == before else "it has changed")


def crowd(check, client):
    """A hundred connections that say nothing: those beyond the bound are told, the page goes on once they are gone."""
    crowded = [socket.create_connection(("127.0.0.1", client.port), timeout=20) for _ in range(100)]
    told = [connection.recv(10_000).decode() for connection in crowded[70:]]
    check("a hundred connections", [text for text in told if " 503 " not in text or "Too many" not in text])
    half = crowded[0]
    half.sendall(f"GET {client.path} HTTP/1.1\r\n".encode())
    check("half a request is not waited for", half.recv(1000) or "")
    for connection in crowded:
        connection.close()
    check("the page goes on after them", "" if client.ask("GET", "")[0] == 200 else "refused")
    for address in {"127.0.0.2", *(found[4][0] for found in socket.getaddrinfo(socket.gethostname(), None, socket.AF_INET))} - {"127.0.0.1"}:
        try:
            socket.create_connection((address, client.port), timeout=5).close()
            check(f"not listened on: {address}", "connected")
        except OSError:
            check(f"not listened on: {address}", "")


def mistakes(check, client, folder):
    """What the author gets wrong is told, and leaves what was there."""
    (folder / "other.scn").write_text("question 314\ncourse\n  Presentations.Add\n", encoding="utf-8")
    move = "ActivePresentation.Slides(1).Shapes(1).Left = 10"
    for endless in (f"For i = 1 To 2000000000\n{move}\nNext", "For i = 1 To 2000000000\nNext"):
        answer = client.order("do", statements=[endless])[1]
        check("a statement that never ends is ended", "" if "more than 5 seconds" in answer.get("error", "") else answer.get("error"))
        left = client.order("say", line="?ActivePresentation.Slides(1).Shapes(1).Left")[1]["said"]
        check("what it has done is taken back", "" if left.strip() == "481.625" else left)
    cases = [
        ("undo", {}, "nothing to take back"),
        ("save", {"file": "mine.scn", "title": "t"}, "verdict first"),
        ("do", {"statements": ["ActivePresentation.Slides(9).Delete"]}, "column"),
        ("do", {"statements": ["ActivePresentation.Slides(1"]}, "column"),
        ("do", {"statements": ["check success"]}, "cannot check"),
        ("say", {"line": "?ActivePresentation.Nothing"}, "no member"),
        ("open", {"question": 999}, "no question 999"),
        ("do", {"statements": [move, move]}, ""),
        ("check", {}, ""),
        *(("save", {"file": name, "title": "t"}, "Name a file") for name in ("../x.scn", "/tmp/x.scn", "C:\\x.scn", "x.txt", "")),
        ("save", {"file": "x.scn", "title": ""}, "title"),
        ("save", {"file": "other.scn", "title": "t"}, "question 314"),
    ]
    for order, body, reason in cases:
        answer = client.order(order, **body)[1]
        check(f"told: {order} {body}", "" if reason in answer.get("error", "") else answer.get("error", "nothing"))
    saved = [client.order("save", file="mine.scn", title=title)[1] for title in ('a "quoted" title', "another", "another")]
    check("saved, and appended", [answer["error"] for answer in saved[:2] if "error" in answer])
    check("a title that is taken", "" if "already" in saved[2].get("error", "") else saved[2].get("said"))
    check("a gesture is taken back as a whole, the verdict with it", client.order("undo")[1]["state"]["statements"])


def ends(check, host, folder, driver):
    """A signal and the closing of the tab in the middle of an exercise: nothing is left behind."""
    signals = {"Ctrl-C": signal.SIGINT, "the terminal is closed": signal.SIGHUP}
    for name in (*signals, "the tab is closed"):
        with tempfile.TemporaryDirectory() as temporary, Player(host, folder, "315", TMPDIR=temporary) as player:
            first = driver.current_window_handle
            driver.switch_to.new_window("tab")
            page = Page(driver, player.address)
            page.click((360, 180))
            if name in signals:
                player.process.send_signal(signals[name])
                player.process.wait(15)
            driver.close()
            driver.switch_to.window(first)
            try:
                code = player.process.wait(15)
            except subprocess.TimeoutExpired:
                code = "still running"
            check(f"{name}: ends well", "" if code == 0 else code)
            check(f"{name}: nothing left", os.listdir(temporary))


def tabs(check, host, folder, driver):
    """A second tab is told that there is a first, and may take its place."""
    with Player(host, folder, "315") as player:
        page = Page(driver, player.address)
        page.click((360, 180))
        first = driver.current_window_handle
        driver.switch_to.new_window("tab")
        driver.get(player.address)
        page.wait("#do-take")
        check("a second tab is told", "" if "autre onglet" in page.one("#said").text or "another tab" in page.one("#said").text else page.one("#said").text)
        page.one("#do-take").click()
        page.wait("#slide .picture svg")
        check("it takes over what has been done", "" if len(page.statements()) == 1 else page.statements())
        driver.refresh()
        page.wait("#slide .picture svg")
        check("a page loaded anew goes on", "" if len(page.statements()) == 1 else page.statements())
        driver.close()
        driver.switch_to.window(first)
        page.press("\ue004")
        check("the first is told", "" if "autre onglet" in page.one("#said").text or "another tab" in page.one("#said").text else page.one("#said").text)


def run(check, host, folder, driver):
    with Player(host, folder, "315") as player:
        client = Client(player.address)
        status, answer = client.ask("POST", "join")
        check("the first page sits down", "" if status == 200 else answer)
        client.seat = json.loads(answer)["seat"]
        mistakes(check, client, pathlib.Path(folder))
        refusals(check, client)
        crowd(check, client)
    tabs(check, host, folder, driver)
    ends(check, host, folder, driver)
    driver.get_log("browser")  # it tells of every refusal
