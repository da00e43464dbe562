"""The print system of the machine, started for one test with a printer that keeps its paper as files."""
import os
import shutil
import subprocess

from driver import until

PRINTER = "Kleuter"
SYSTEM = "/usr/lib/cups"
FILES_CONF = """ServerRoot {0}/etc
ServerBin {0}/lib
RequestRoot {0}/spool
TempDir {0}/spool/tmp
CacheDir {0}/cache
StateDir {0}/run
ErrorLog {0}/log/error
AccessLog {0}/log/access
PageLog {0}/log/page
"""
CONF = """Listen {0}/run/sock
WebInterface No
Browsing No
DefaultAuthType None
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    AuthType None
    Order allow,deny
    Allow all
  </Limit>
</Policy>
"""
# A way to a printer, as the print system calls it: JOB USER TITLE COPIES OPTIONS [FILE].
KEEPER = """#!/bin/sh
[ $# = 0 ] && exit 0
paper="${DEVICE_URI#keep:}"
cat "${6:--}" > "$paper/$1.part" && mv "$paper/$1.part" "$paper/$1.pdf"
"""


class PrintSystem:
    """One printer; `paper` holds a file for each job. Programs that start on the desktop afterwards print on it."""

    def __init__(self, desktop):
        self.folder = desktop.folder / "cups"
        for name in ("etc", "lib/backend", "spool/tmp", "cache", "run", "log", "paper"):
            (self.folder / name).mkdir(parents=True)
        self.paper = self.folder / "paper"
        # The print system gives up its rights before it hands a page to the printer.
        for folder in (desktop.folder, self.folder):
            os.chmod(folder, 0o755)
        os.chmod(self.paper, 0o777)
        os.symlink(f"{SYSTEM}/daemon", self.folder / "lib/daemon")
        self._write("etc/cups-files.conf", FILES_CONF.format(self.folder))
        self._write("etc/cupsd.conf", CONF.format(self.folder))
        os.chmod(self._write("lib/backend/keep", KEEPER), 0o755)
        path = os.environ.get("PATH", "") + ":/usr/sbin"
        desktop.helper([shutil.which("cupsd", path=path), "-f", "-c", str(self.folder / "etc/cupsd.conf"),
                        "-s", str(self.folder / "etc/cups-files.conf")])
        desktop.env["CUPS_SERVER"] = str(self.folder / "run/sock")
        lpadmin = shutil.which("lpadmin", path=path)

        def made():
            run = subprocess.run([lpadmin, "-p", PRINTER, "-E", "-v", f"keep:{self.paper}", "-m", "raw"], env=desktop.env,
                                 stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)
            return run.returncode == 0
        until(made, "printer")
        subprocess.run([lpadmin, "-d", PRINTER], env=desktop.env, check=True)

    def _write(self, name, text):
        (self.folder / name).write_text(text)
        return self.folder / name

    def pages(self):
        return sorted(self.paper.glob("*.pdf"))
