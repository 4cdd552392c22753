# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""What the documents show works: each command is run over the demo world, or checked as its row in
HOW says. A command without a row fails, so that nothing gets in unchecked.
"""

import configparser
import json
import os
import re
import shutil
import signal
import subprocess
import sys
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path[:0] = [HERE, os.path.join(os.path.dirname(HERE), "standin")]
sys.dont_write_bytecode = True

import demo  # noqa: E402  (their folders have just been added)
import documents  # noqa: E402

PROGRAMS = os.environ["TORVI_PROGRAMS"]
PATIENCE = 60
SETTINGS = ("json", "ini", "css", "tmux", "sway")
NO_COMMANDS = ("text",)


class UnknownCommand(AssertionError):
    pass


class Session:
    """A demo world with a session bus and a Torvi without a display."""

    def __init__(self):
        self.world = demo.DemoWorld(pace="0")
        self.environment = {**self.world.environment(), "QT_QPA_PLATFORM": "offscreen",
                            "QT_QUICK_BACKEND": "software", "LC_ALL": "C.UTF-8",
                            "XDG_RUNTIME_DIR": self.world.path}
        self.environment["PATH"] = PROGRAMS + os.pathsep + self.environment["PATH"]
        for name in ("DISPLAY", "WAYLAND_DISPLAY", "NO_COLOR"):
            self.environment.pop(name, None)
        self.children = []
        bus = self.start("dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=1")
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()

    def close(self):
        for child in reversed(self.children):
            os.killpg(child.pid, signal.SIGKILL)
            child.wait()
            child.stdout.close()
        self.world.__exit__()

    def start(self, *arguments):
        child = subprocess.Popen(arguments, env=self.environment, stdin=subprocess.DEVNULL,
                                 stdout=subprocess.PIPE, text=True, start_new_session=True)
        self.children.append(child)
        return child

    def run(self, command, shell="bash"):
        """What it prints; it has to succeed."""
        done = subprocess.run([shell, "-c", command], env=self.environment, text=True,
                              stdin=subprocess.DEVNULL, capture_output=True, timeout=PATIENCE,
                              cwd=self.world.home, check=False)
        if done.returncode != 0:
            raise AssertionError(f"{command}: {done.returncode}: {done.stderr}")
        return done.stdout

    def run_with_torvi(self, command):
        """Beside the one Torvi of the session, which is started with the first such command."""
        if "org.freedesktop.Application" not in self._introspection():
            self.start("torvi")
            self.run("gdbus wait --session --timeout 30 com.veldra.Torvi")
        return self.run(command)

    def _introspection(self):
        done = subprocess.run(["gdbus", "introspect", "--session", "-d", "com.veldra.Torvi", "-o",
                               "/com/veldra/Torvi"], env=self.environment, text=True,
                              capture_output=True, timeout=PATIENCE, check=False)
        return done.stdout

    def first_line(self, command):
        """Of a command that goes on for ever."""
        line = self.start("bash", "-c", command).stdout.readline()
        if not line.strip():
            raise AssertionError(f"{command} prints nothing")
        return line

    def run_on_sources(self, command):
        """The desktop entry as it is before it is installed."""
        return self.run(command.replace("/usr/share/applications",
                                        os.path.join(documents.ROOT, "packaging")))

    def prompt(self, command):
        """A bash prompt, as bash expands it."""
        return self.shown(self.run(f'{command}; echo "${{PS1@P}}"'))

    def zsh_prompt(self, block):
        return self.shown(self.run(f'{block}; print -P "$PROMPT"', shell="zsh"))

    @staticmethod
    def shown(line):
        if "larkspur" not in line:
            raise AssertionError(f"the prompt shows no project: {line}")
        return line


def known_to_dev(_session, command):
    """It would install packages and build all: its help and its branches have to know it."""
    name, *options = command.split("#")[0].split()[1:]
    text = documents.read("dev")
    listed = re.search(rf"^  {name} .*(\n {{10,}}.*)*", text, re.MULTILINE)
    branch = re.search(rf"^    {name}\)", text, re.MULTILINE)
    if not listed or not branch \
            or any(option.strip("[]") not in listed[0] for option in options):
        raise UnknownCommand(command)


def names_our_packages(_session, command):
    """packaging/tryPackages.sh installs and removes them, in a system of their own."""
    words = command.split()
    packages = words[words.index("apt") + 2:]
    tried = documents.read("packaging/tryPackages.sh")
    verb = words[words.index("apt") + 1]
    if not set(packages) <= {"torvi", "torvictl", "./build/package/*.deb"} \
            or f"apt-get {verb}" not in tried:
        raise UnknownCommand(command)


def gsettings(_session, command):
    """Needs GNOME's schemas; tests/desktop/panels.py binds the key with the same settings."""
    binding = documents.read("tests/desktop/panel_settings.py")
    key = re.search(r" set \S+ ([a-z-]+) ", command)
    if key and key[1] not in binding:
        raise UnknownCommand(command)


# How each kind of command is checked; the first that fits.
HOW = [
    (r"torvictl watch\b", Session.first_line),
    (r"torvictl ", Session.run),
    (r"gcloud config ", Session.run),
    (r"torvi --quit$", Session.run),
    (r"torvi --doctor$", Session.run),
    (r"torvi --(toggle|manager|live-title)$", Session.run_with_torvi),
    (r"gdbus call .* com\.veldra\.Torvi ", Session.run_with_torvi),
    (r"\./dev ", known_to_dev),
    (r"sudo apt (install|purge) ", names_our_packages),
    (r"install -Dm644 -t ~/\.config/autostart ", Session.run_on_sources),
    (r"rm (-r )?~/\.config/", Session.run),
    (r"PS1=", Session.prompt),
    (r"gsettings set ", gsettings),
    (r"(keys|path)=", gsettings),
]


def check(session, command):
    """What the command prints, when it was run."""
    for pattern, how in HOW:
        if re.match(pattern, command):
            return how(session, command)
    raise UnknownCommand(command)


def check_settings(session, block):
    """Settings of other programs: their form, and the commands of ours in them."""
    if block.language == "json":
        json.loads("{" + block.text + "}")
    elif block.language == "ini":
        parser = configparser.RawConfigParser(strict=True)
        parser.read_string(block.text)
    for command in documents.within_settings(block.text):
        check(session, command)


class DocumentsTest(unittest.TestCase):
    def setUp(self):
        missing = [name for name in ("dbus-daemon", "gdbus", "jq", "zsh") if not shutil.which(name)]
        if missing:
            self.skipTest(f"not installed: {' '.join(missing)}")

    def check_document(self, path):
        session = Session()
        try:
            for block in documents.blocks(path, documents.read(path)):
                with self.subTest(block.place):
                    self.check_block(session, block)
        finally:
            session.close()

    def check_block(self, session, block):
        if block.language in NO_COMMANDS:
            return
        if block.language in SETTINGS:
            check_settings(session, block)
        elif block.language == "zsh":
            session.zsh_prompt(block.text)
        else:
            self.assertEqual(block.language, "", "a language without a row")
            for command, printed in block.commands():
                output = check(session, command)
                if printed is not None:
                    self.assertEqual(output, printed, command)

    def test_every_command_works(self):
        paths = documents.paths()
        self.assertIn("README.md", paths)
        for path in paths:
            with self.subTest(path):
                self.check_document(path)

    def test_what_is_named_in_passing_exists(self):
        helps = {program: subprocess.run([os.path.join(PROGRAMS, program), "--help"], text=True,
                                         capture_output=True, timeout=PATIENCE, check=True).stdout
                 for program in ("torvi", "torvictl")}
        for path in documents.paths():
            for span in documents.spans(documents.read(path)):
                words = span.split()
                with self.subTest(f"{path}: {span}"):
                    if words[0] in helps and len(words) > 1:
                        self.assertRegex(helps[words[0]], rf"(^|\s){re.escape(words[1])}\b")
                    elif words[0] == "./dev" and len(words) > 1:
                        known_to_dev(None, span)

    def test_links_lead_somewhere(self):
        for path in documents.paths():
            folder = os.path.join(documents.ROOT, os.path.dirname(path))
            text = documents.read(path)
            for link in re.findall(r"\]\(([^)#]+)\)|src=\"([^\"]+)\"", text):
                with self.subTest(f"{path}: {link}"):
                    self.assertTrue(os.path.exists(os.path.join(folder, "".join(link))))


class ExtractionTest(unittest.TestCase):
    TEXT = "Words:\n\n    $ torvictl status\n    Project  x\n    $ torvictl pin x\n\nMore.\n"

    def test_a_command_comes_with_what_it_prints(self):
        [block] = documents.blocks("a.md", self.TEXT)

        self.assertEqual(block.place, "a.md:3")
        self.assertEqual(block.commands(), [("torvictl status", "Project  x\n"),
                                            ("torvictl pin x", None)])

    def test_lines_without_a_prompt_are_commands(self):
        [block] = documents.blocks("a.md", "    torvictl a \\\n        b\n    torvictl c\n")

        self.assertEqual(block.commands(), [("torvictl a b", None), ("torvictl c", None)])

    def test_settings_hold_commands(self):
        found = documents.within_settings('exec = torvictl watch --format polybar\n'
                                          '"on-click": "torvi --toggle"\nclick = torvi --toggle &')

        self.assertEqual(found, ["torvictl watch --format polybar", "torvi --toggle",
                                 "torvi --toggle"])

    def test_a_command_without_a_row_fails(self):
        for command in ("curl https://torvi.example", "torvi --frobnicate", "./dev frobnicate",
                        "./dev test --frobnicate", "sudo apt install something"):
            with self.assertRaises(UnknownCommand, msg=command):
                check(None, command)


if __name__ == "__main__":
    unittest.main()
