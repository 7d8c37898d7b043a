#!/usr/bin/env python3
"""Printers that nobody else sees: a print server of its own with the queues Alpha and Beta, which keep what they print.

    private_printers.py     starts one; prints its address and the folder of what is printed, a line each;
                            stops it when standard input ends

Alpha has letter paper in it, Beta, the default printer, A4. A job becomes the files Alpha-7.pdf and Alpha-7.txt, the
latter with title, number of copies and options as the queue got them. Whoever prints finds the server by the
variable CUPS_SERVER.
"""

import os
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

PATIENCE = 30  # seconds that a machine under load may take for anything

# Names as the queue knows them, and points.
PAPER = {"Letter": (612, 792), "Legal": (612, 1008), "FanFoldGermanLegal": (612, 936), "FanFoldGerman": (612, 864),
         "A4": (595, 842)}

BACKEND = """#!/bin/bash
[ $# -eq 0 ] && { echo 'direct keep "Unknown" "Keep output"'; exit 0; }
n=${DEVICE_URI#keep:}/$PRINTER-$1
if [ -n "$6" ]; then cat "$6"; else cat; fi >"$n.pdf"
printf 'title=%s\\ncopies=%s\\noptions=%s\\n' "$3" "$4" "$5" >"$n.txt"
"""

SERVER = """LogLevel debug
Listen {root}/run/cups.sock
Browsing No
WebInterface No
DefaultAuthType None
<Location />
Order allow,deny
Allow all
</Location>
<Policy default>
JobPrivateAccess all
JobPrivateValues none
<Limit All>
Order allow,deny
Allow all
</Limit>
</Policy>
"""

FILES = """SystemGroup {group}
User {user}
Group {group_of_jobs}
FileDevice Yes
Sandboxing relaxed
ServerRoot {root}/etc
ServerBin {root}/bin
DataDir /usr/share/cups
DocumentRoot /usr/share/cups
RequestRoot {root}/spool
TempDir {root}/spool/tmp
CacheDir {root}/cache
StateDir {root}/run
AccessLog {root}/log/access
ErrorLog {root}/log/error
PageLog {root}/log/page
"""

DRIVER = """*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "KEEP.PPD"
*Manufacturer: "Keep"
*Product: "(Keep)"
*ModelName: "Keep"
*ShortNickName: "Keep"
*NickName: "Keep"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*cupsFilter2: "application/pdf application/pdf 0 -"
"""


def driver():
    """The description of a printer that takes every paper and passes on what it gets."""
    lines = [DRIVER]
    for name in ("PageSize", "PageRegion"):
        lines.append(f"*OpenUI *{name}: PickOne\n*OrderDependency: 10 AnySetup *{name}\n*Default{name}: Letter\n")
        lines += [f'*{name} {paper}: "<</PageSize[{width} {height}]>>setpagedevice"\n'
                  for paper, (width, height) in PAPER.items()]
        lines.append(f"*CloseUI: *{name}\n")
    for name, border in (("ImageableArea", 12), ("PaperDimension", None)):
        lines.append(f"*Default{name}: Letter\n")
        for paper, (width, height) in PAPER.items():
            inside = f"{border} {border} {width - border} {height - border}" if border else f"{width} {height}"
            lines.append(f'*{name} {paper}: "{inside}"\n')
    lines.append("*OpenUI *Duplex: PickOne\n*OrderDependency: 15 AnySetup *Duplex\n*DefaultDuplex: None\n"
                 '*Duplex None: ""\n*Duplex DuplexNoTumble: ""\n*Duplex DuplexTumble: ""\n*CloseUI: *Duplex\n')
    lines.append("*OpenUI *Resolution: PickOne\n*OrderDependency: 20 AnySetup *Resolution\n"
                 '*DefaultResolution: 600dpi\n*Resolution 600dpi: ""\n*CloseUI: *Resolution\n'
                 '*DefaultFont: Courier\n*Font Courier: Standard "(002.004S)" Standard ROM\n')
    return "".join(lines)


def is_root():
    return os.geteuid() == 0


class Printers:
    def __init__(self):
        self.server = None
        self.root = Path(tempfile.mkdtemp(prefix="tarnwick-printers-"))
        self.out = self.root / "out"
        self.address = self.root / "run" / "cups.sock"
        try:
            self.lay_out()
            self.start()
            self.queue("Alpha", "Letter")
            self.queue("Beta", "A4")
            self.command("lpadmin", "-d", "Beta")
        except BaseException:
            self.close()
            raise

    def lay_out(self):
        self.root.chmod(0o755)
        for folder in ("etc/ppd", "spool/tmp", "cache", "run/certs", "log", "bin/backend", "out"):
            (self.root / folder).mkdir(parents=True)
        for folder in ("filter", "daemon", "monitor", "notifier"):
            if Path("/usr/lib/cups", folder).exists():
                (self.root / "bin" / folder).symlink_to(Path("/usr/lib/cups", folder))
        backend = self.root / "bin" / "backend" / "keep"
        backend.write_text(BACKEND)
        backend.chmod(0o700 if is_root() else 0o755)
        group = subprocess.run(["id", "-gn"], check=True, stdout=subprocess.PIPE, text=True).stdout.strip()
        user = subprocess.run(["id", "-un"], check=True, stdout=subprocess.PIPE, text=True).stdout.strip()
        (self.root / "etc" / "cupsd.conf").write_text(SERVER.format(root=self.root))
        (self.root / "etc" / "cups-files.conf").write_text(FILES.format(
            root=self.root, group=group, user="lp" if is_root() else user, group_of_jobs="lp" if is_root() else group))
        (self.root / "keep.ppd").write_text(driver())
        if is_root():  # the server's helpers lay their powers down
            for folder in ("out", "spool", "spool/tmp", "cache"):
                shutil.chown(self.root / folder, "lp", "lp")

    def start(self):
        self.server = subprocess.Popen(
            ["/usr/sbin/cupsd", "-f", "-c", self.root / "etc" / "cupsd.conf", "-s",
             self.root / "etc" / "cups-files.conf"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.until(self.answers, "the print server")

    def until(self, condition, what):
        start = time.monotonic()
        while not condition():
            if self.server.poll() is not None:
                raise AssertionError(f"the print server is gone: {self.log()}")
            if time.monotonic() - start > PATIENCE:
                raise AssertionError(f"waited in vain: {what}: {self.log()}")
            time.sleep(0.02)

    def log(self):
        log = self.root / "log" / "error"
        return log.read_text(errors="replace")[-2000:] if log.exists() else "it has said nothing"

    def environment(self):
        return {**os.environ, "CUPS_SERVER": str(self.address), "PATH": f"{os.environ.get('PATH', '')}:/usr/sbin:/usr/bin"}

    def command(self, *words):
        """A command about printers; what it prints."""
        return subprocess.run(list(map(str, words)), env=self.environment(), check=True, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, text=True).stdout

    def answers(self):
        asked = subprocess.run(["lpstat", "-r"], env=self.environment(), stdout=subprocess.PIPE,
                               stderr=subprocess.DEVNULL, text=True)
        return "is running" in asked.stdout

    def queue(self, name, paper):
        self.command("lpadmin", "-p", name, "-E", "-v", f"keep:{self.out}", "-P", self.root / "keep.ppd", "-o",
                     f"PageSize={paper}")

    def printed(self):
        """The files of the jobs in the order of their numbers, once none waits any more."""
        self.until(lambda: not self.command("lpstat", "-o").strip(), "the jobs printed")
        return sorted(self.out.glob("*.pdf"), key=lambda path: int(path.stem.rsplit("-", 1)[1]))

    def close(self):
        if self.server:
            self.server.terminate()
            self.server.wait(PATIENCE)
        shutil.rmtree(self.root, ignore_errors=True)


def main():
    printers = Printers()
    try:
        print(printers.address, printers.out, sep="\n", flush=True)
        sys.stdin.read()
    finally:
        printers.close()


if __name__ == "__main__":
    main()
