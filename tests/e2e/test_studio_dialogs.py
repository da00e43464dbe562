"""The standard dialogs as the child reads them: in Dutch, without what a child does not need."""
import unittest

import kraspret
import studio
from studio import Studio

ENGLISH = {"Cancel", "Open", "Save", "Look in:", "File name:", "Files of type:", "Name", "Size", "Type", "Kind", "Date Modified",
           "Folder", "File", "Basic colors", "Custom colors", "Pick Screen Color", "Add to Custom Colors", "Yes", "No"}


class Dialogs(Studio):
    def words(self):
        """Every name that shows while a dialog is open."""
        self.program.wait_dialog()
        return {kraspret.driver.plain_name(c.name or "") for c in self.program.controls()}

    def close(self):
        self.program.wait_dialog()
        self.desktop.key("Escape")
        self.program.wait_no_dialog()

    def test_the_colour_dialog_offers_ready_colours_only(self):
        self.click(studio.BACKGROUND)
        words = self.words()
        self.assertLessEqual({"Basiskleuren", "OK", "Annuleren"}, words)
        self.assertEqual(words & {"HTML:", "Rood:", "Aan eigen kleuren toevoegen", "Kleur van het scherm kiezen"}, set())
        self.assertEqual(words & ENGLISH, set())
        self.close()

    def test_the_colour_dialog_of_the_gradient_can_mix(self):
        self.click("overgang achtergrond van kleur 1 naar kleur 2")
        self.click("kleur achtergrond links / boven")
        self.assertLessEqual({"Rood:", "Groen:", "Blauw:", "Aan eigen kleuren toevoegen"}, self.words())
        self.close()

    def test_the_save_dialog_is_dutch_and_proposes_no_name(self):
        (self.desktop.folder / "home" / "Tekeningen").mkdir(exist_ok=True)
        self.click(kraspret.SAVE)
        self.program.control("Tekeningen")
        words = self.words()
        self.assertLessEqual({"Annuleren", "Bestandsnaam:", "Soort bestand:", "Naam", "Grootte", "Soort", "Map"}, words)
        self.assertEqual(words & ENGLISH, set())
        field = next(c for c in self.program.controls() if c.role == "text" and c.has("FOCUSED"))
        self.assertEqual(field.text, "")
        self.close()

    def files(self):
        """Everything in the home folder that the program may have made, with its contents."""
        home = self.desktop.folder / "home"
        return {p.relative_to(home): p.read_bytes() for p in home.rglob("*") if p.is_file() and ".cache" not in p.parts}

    def test_no_key_in_a_file_dialog_deletes_a_folder_with_all_it_holds(self):
        drawings = self.folder / "mijn tekeningen"
        (drawings / "zomer").mkdir(parents=True)
        for name in ("oma.bmp", "zomer/zee.bmp"):
            (drawings / name).write_bytes(b"not to be lost")
        for button, answer in ((kraspret.SAVE, None), (kraspret.OPEN, "Nee")):
            with self.subTest(button):
                self.click(button)
                if answer:
                    self.program.answer(kraspret.OPEN_QUESTION, answer)
                self.program.wait_dialog()
                self.desktop.type(str(self.folder))
                self.desktop.key("Return")
                row = self.program.control("mijn tekeningen")
                row.click()
                self.desktop.key("Delete", "Return")
                for _ in range(4):
                    self.desktop.key("Escape")
                self.program.wait_no_dialog()
                self.assertEqual({p.name: p.read_bytes() for p in drawings.rglob("*") if p.is_file()},
                                 {"oma.bmp": b"not to be lost", "zee.bmp": b"not to be lost"})

    def test_no_dialog_leaves_anything_behind(self):
        before = self.files()
        for button in (kraspret.SAVE, studio.BACKGROUND):
            self.click(button)
            self.close()
        self.click(studio.BACKGROUND)
        self.mix(1, 1)
        self.assertEqual(self.files(), before)

    def test_a_message_has_no_buttons_to_make_it_small_or_large(self):
        self.click(kraspret.OPEN)
        self.program.wait_dialog(kraspret.OPEN_QUESTION)
        box = self.program.wait_window(kraspret.OPEN_QUESTION)
        small, large = 0x20, 0x40
        buttons = int(self.desktop.property(box, "_MOTIF_WM_HINTS").split("=")[1].split(",")[2], 16)
        self.assertEqual(buttons & (small | large), 0, hex(buttons))
        self.program.answer(kraspret.OPEN_QUESTION, "Nee")
        self.close()


if __name__ == "__main__":
    unittest.main()
