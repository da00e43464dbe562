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


if __name__ == "__main__":
    unittest.main()
