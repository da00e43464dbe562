"""The installed launcher, with a program in its place that tells how it was started."""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

LAUNCHER = pathlib.Path(__file__).resolve().parents[2] / "packaging/debian/launcher/kraspret.in"
TELLING = '#!/bin/sh\nprintf "%s\\n" "$0" "$@" >"$TOLD"\n'
NOBODY = 65534  # to the administrator no folder is closed


class Launcher(unittest.TestCase):
    def setUp(self):
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="kraspret-launcher-"))
        self.addCleanup(shutil.rmtree, self.root, ignore_errors=True)
        self.root.chmod(0o755)
        self.home, self.told = self.root / "home", self.root / "told/words"
        for folder in (self.home, self.told.parent):
            folder.mkdir()
            folder.chmod(0o777)
        self.folder = self.home / ".local/share/kraspret"
        self.installed = self.install("1")

    def install(self, number, version="1.2.3"):
        """What a package puts down; gives the launcher."""
        place = self.root / f"usr{number}"
        (place / "Beeld").mkdir(parents=True)
        (place / "Beeld/01.gif").write_bytes(b"GIF89a")
        (place / "kraspret").write_text(TELLING)
        (place / "kraspret").chmod(0o755)
        launcher = place / "launcher"
        launcher.write_text(LAUNCHER.read_text().replace("@PROGRAM@", str(place / "kraspret"))
                            .replace("@PAGES@", str(place / "Beeld")).replace("@VERSION@", version))
        launcher.chmod(0o755)
        return launcher

    def start(self, *arguments, launcher=None, status=0, **environment):
        """Runs the launcher; gives its words, and keeps what the program told."""
        self.told.unlink(missing_ok=True)
        env = {"PATH": os.environ["PATH"], "HOME": str(self.home), "TOLD": str(self.told)} | environment
        as_user = {"user": NOBODY, "group": NOBODY, "extra_groups": []} if os.geteuid() == 0 else {}
        run = subprocess.run([launcher or self.installed, *arguments], env={k: v for k, v in env.items() if v is not None}, cwd=self.root,
                             stdin=subprocess.DEVNULL, capture_output=True, text=True, timeout=60, check=False, **as_user)
        self.assertEqual(run.returncode, status, run.stderr)
        return run.stdout, run.stderr

    def words(self):
        return self.told.read_text().splitlines()

    def expect_started(self, folder=None):
        folder = folder or self.folder
        self.assertEqual(self.words()[0], str(folder / "kraspret"))
        self.assertEqual((folder / "Beeld/01.gif").read_bytes(), b"GIF89a")

    def test_the_first_start_makes_a_folder_of_the_users_own(self):
        self.start()
        self.expect_started()
        self.assertEqual(self.words()[1:], [])
        self.assertEqual(sorted(os.listdir(self.folder)), ["Beeld", "kraspret"])

    def test_a_second_start_changes_nothing(self):
        self.start()
        before = [(p.name, p.lstat().st_ino) for p in sorted(self.folder.iterdir())]
        self.start()
        self.assertEqual([(p.name, p.lstat().st_ino) for p in sorted(self.folder.iterdir())], before)

    def test_the_name_of_a_picture_gets_through_with_its_blanks(self):
        self.start("/tmp/mijn  tekening.bmp", "nog", "iets")
        self.assertEqual(self.words()[1:], ["/tmp/mijn  tekening.bmp", "nog", "iets"])

    def test_help_alone_is_answered(self):
        for option in ("--help", "-h"):
            self.assertIn("Gebruik: kraspret", self.start(option)[0])
            self.assertFalse(self.told.exists())
        self.assertFalse(self.folder.exists())

    def test_version_alone_is_answered(self):
        self.assertEqual(self.start("--version")[0], "KrasPret 1.2.3\n")
        self.assertFalse(self.told.exists())

    def test_an_option_among_other_words_names_a_picture(self):
        self.start("--help", "tekening.bmp")
        self.assertEqual(self.words()[1:], ["--help", "tekening.bmp"])

    def test_broken_links_are_mended(self):
        self.start()
        for name in ("kraspret", "Beeld"):
            (self.folder / name).unlink()
            (self.folder / name).symlink_to("/nergens")
        self.start()
        self.expect_started()

    def test_a_link_that_is_gone_comes_back(self):
        self.start()
        (self.folder / "Beeld").unlink()
        self.start()
        self.expect_started()

    def test_what_stood_in_the_place_of_a_link_is_kept(self):
        self.start()
        (self.folder / "Beeld").unlink()
        (self.folder / "Beeld").mkdir()
        (self.folder / "Beeld").chmod(0o777)
        (self.folder / "Beeld/eigen.bmp").write_text("van mij")
        (self.folder / "kraspret").unlink()
        (self.folder / "kraspret").write_text("ook van mij")
        self.start()
        self.expect_started()
        self.assertEqual([p.read_text() for p in self.folder.glob("Beeld.oud.*/eigen.bmp")], ["van mij"])
        self.assertEqual([p.read_text() for p in self.folder.glob("kraspret.oud.*")], ["ook van mij"])

    def test_an_upgrade_is_followed(self):
        self.start()
        shutil.rmtree(self.root / "usr1")
        self.start(launcher=self.install("2"))
        self.expect_started()
        self.assertEqual(os.readlink(self.folder / "kraspret"), str(self.root / "usr2/kraspret"))

    def test_the_data_folder_of_the_desktop_is_used(self):
        self.start(XDG_DATA_HOME=str(self.home / "gegevens"))
        self.expect_started(self.home / "gegevens/kraspret")

    def test_a_relative_data_folder_is_no_data_folder(self):
        self.start(XDG_DATA_HOME="gegevens")
        self.expect_started()

    def expect_refusal(self):
        _, said = self.start(status=1)
        self.assertIn(f"in de map {self.folder} kan niet geschreven worden", said)
        self.assertEqual(len(said.splitlines()), 1, said)
        self.assertFalse(self.told.exists())

    def test_a_home_that_cannot_be_written_is_told(self):
        self.home.chmod(0o555)
        self.expect_refusal()

    def test_a_folder_that_cannot_be_written_is_told(self):
        self.start()
        os.chown(self.folder, os.geteuid(), os.getegid())
        self.folder.chmod(0o555)
        self.expect_refusal()

    def test_a_file_in_the_place_of_the_folder_is_told(self):
        self.folder.parent.mkdir(parents=True)
        self.folder.write_text("")
        self.expect_refusal()

    def test_without_a_home_nothing_is_made_at_the_root(self):
        _, said = self.start(status=1, HOME=None)
        self.assertIn("KrasPret kan niet starten", said)
        self.assertFalse(self.told.exists())


if __name__ == "__main__":
    sys.exit(unittest.main())
