// The script of the course: what each "Verder" shows, hides and says.
#include "course/frmTekenen3.h"

using namespace surface;

namespace {

// What the child reads at each step; the slips are the teacher's own.
const std::array<const char*, frmTekenen3::Steps> Texts = {
    "Eigenlijk begint het altijd met een leeg tekenblad en iets om mee te tekenen (een potlood, "
    "penseel, ...). Klik eerst de knop Tekenen (het potlood) aan. Plaats daarna je muis in het "
    "tekenblad, houd de linkerknop ingedrukt en teken maar iets willekeurig. Laat de muis ook "
    "eens even boven de knop rusten. Gezien ?",
    "Klik eerst op de knop Lijn. Een rechte lijn trek je door op het beginpunt waar je de lijn "
    "wil de linker muisknop in te drukken, ingedrukt te houden en over het tekenblad naar het "
    "eindpunt van je lijn te bewegen. Muisknop loslaten en je lijn is klaar.",
    "Klik eerst even op de knop Tekenen. Met het schuifregelaartje kun je de dikte van de lijn "
    "veranderen. Je ziet ernaast het resultaat als een voorbeeld-lijn. Die dikte geldt dan voor "
    "alle lijnen (rechte lijnen, cirkels, ...) tot je weer verandert. Probeer maar eens met een "
    "willekeurige lijn en daarna ook eens met een rechte lijn.",
    "Klik eerst op de knop Rechthoek. Een vierkant of rechthoek teken je door op het beginpunt "
    "- waar je de rechthoek wil hebben - de linker muisknop in te drukken, ingedrukt te houden "
    "en over het tekenblad naar het eindpunt van je rechthoek te bewegen. Muisknop loslaten en "
    "je vierkant of rechthoek is klaar.",
    "Klik eerst op de knop Ellips. Een cirkel of ellips teken je door vanuit het middelpunt van "
    "de cirkel of ellips (= ovaal, eivorm) de linker muisknop in te drukken, ingedrukt te "
    "houden en over het tekenblad naar de rand (omtrek) van je cirkel of ellips te bewegen. "
    "Muisknop loslaten en je cirkel of ellips is klaar.",
    "Klik eerst op de knop Tekenen. Als je een klein foutje gemaakt hebt kun je dat verbeteren "
    "door eraan te gommen. Net zoals op een echt blad papier. Probeer maar eens : teken iets, "
    "klik op de knop Gom en gom een stukje weg. De gom heeft altijd de kleur (over kleuren "
    "straks meer) van de achtergrond (die is nu wit).",
    "Klik eerst op de knop Lijn. Als je een fout gemaakt hebt rechte of willekeurige lijn, "
    "rechthoek of cirkel, kleur, ... kun je de laatste bewerking verbeteren. Probeer maar eens "
    ": teken even vijf lijnen langs elkaar. Klik nu op de knop Ongedaan en je merkt dat de "
    "laatste lijn verdwenen (=ongedaan gemaakt) is.",
    "Klik eerst op de knop Tekenen. Is de tekening toch niet geworden wat je bedoelde ? Wil je "
    "een nieuw, wit blad om aan een nieuwe tekening te beginnen ? Probeer maar eens : teken "
    "maar wat willekeurige lijnen. Klik nu op de knop Wissen en je merkt dat je over een nieuw, "
    "blanco blad beschikt.",
    "Even tussendoor. Je wist al dat als je muis even boven een knop of een ander deel van het "
    "scherm laat rusten, je een schermpje met uitleg krijgt. In ons programma is er ook een "
    "MEDEDELINGENBORDJE. Klik op enkele knoppen en lees de mededeling maar eens. Handig ?",
    "Als je met je muis op een kleur in het KLEURENPALET klikt, zie je ook de kleur erboven (in "
    "de KLEURKIEZER onder de rode pijl) veranderen. Nu zal de kleur op je tekening ook "
    "veranderen. Probeer maar met lijn en rechthoek.",
    "Je kunt - met de kleuren uit het kleuren die je koos uit het kleurenpalet - allerlei "
    "vlakken in je tekening opvullen. Teken eens een rechthoek. Klik dan op de knop Opvullen, "
    "kies een kleur en giet die binnen de rechthoek. Kies een andere kleur en giet die over je "
    "blad (is nu wit). Ook de omtrek van de rechthoek kan !",
    "Het is geen potlood en ook geen verfborstel, maar je kan er wel mee tekenen : het "
    "SPUITBUSJE. Probeer maar eens : klik op de knop Spuitbusje en teken een lijn. Verander ook "
    "eens van kleur. Teken ook eens een heel klein cirkeltje.",
    "Maak eens een kleine willekeurige tekening. Klik daarna op de knop Opslaan. Je krijgt dan "
    "een scherpje waarin je je tekening een naam kan geven en op een bepaalde plaats in de "
    "computer bewaren. Zo gaat je tekening niet verloren. Tik de naam 'test' in en klik op "
    "Opslaan.",
    "Later kun je uit dezelfde plaats op je computer jouw tekening met de naam test ophalen. "
    "Klik op de knop Openen. Er wordt weer een schermpje geopend. Zie je je tekening (test) ? "
    "Klik hierop en dan op de knop openen en je tekening is er weer. Het mag ook een andere "
    "tekening, foto of kleurplaat zijn, hoor.",
    "Haal je tekening (test) nog eens terug met de knop Openen. Vind je ze mooi ? Dan kan je ze "
    "door op de knop Afdrukken ook werkelijk afdrukken (alleen mogelijk als er een printer "
    "aangesloten is op je computer, uiteraard !).",
    "In het Startmenu heb je ook de knop Kleurplaten. Tekenen Klein wordt dan gebruikt om "
    "kleurplaten in te kleuren en te bewerken. De knop Openen Bestand wordt dan vervangen door "
    "de knop Kleurplaat (bloemetjes), die je toelaat die kleurplaten in het programma in te "
    "voegen.",
    "Ziezo ! Dat was het. Je hebt alle zaken doorlopen die nodig zijn om met Tekenen Simpel "
    "vlot te kunnen werken. Tekenen Groot bevat meer mogelijkheden maar eigenlijk is tekenen "
    "met de computer niet zo erg moeilijk : als je maar de gewone, voornaamste dingen weet. "
    "Veel succes ermee !",
};

}  // namespace

// Each step wipes the sheet and takes the pen's colour away, so that the child has to choose the
// tool which the text names.
void frmTekenen3::takeStep(int step) {
  if (step == 9) lblModus.Caption = "";
  if (step > 1) cmdClear_Click();
  if (step >= 2 && step <= 9) picBlad.ForeColor = White;
  showForStep(step);
  const auto all = buttons();
  const auto own = static_cast<std::size_t>(step - 1);
  showControl(*all[own], false);
  if (step < Steps) {
    showControl(*all[own + 1], true);
    // Otherwise the keys would now press "Sluiten".
    all[own + 1]->SetFocus();
  }
  lblCursus.Caption = Texts[own];
}

void frmTekenen3::showForStep(int step) {
  const auto show = [](auto&... controls) { (showControl(controls, true), ...); };
  const auto hide = [](auto&... controls) { (showControl(controls, false), ...); };
  switch (step) {
    case 1:
      show(cmdTekenen);
      break;
    case 2:
      show(cmdLijn);
      hide(cmdTekenen);
      break;
    case 3:
      show(cmdTekenen, Slider1, Line2);
      break;
    case 4:
      show(cmdRechthoek);
      hide(cmdTekenen, cmdLijn, Slider1, Line2);
      break;
    case 5:
      show(cmdEllips);
      hide(cmdRechthoek);
      break;
    case 6:
      txt1.Text = "1";
      show(cmdTekenen, cmdGom);
      hide(cmdEllips);
      break;
    case 7:
      txt2.Text = "1";
      show(cmdLijn, cmdUndo);
      hide(cmdTekenen, cmdGom);
      break;
    case 8:
      show(cmdTekenen, cmdClear);
      hide(cmdLijn, cmdUndo);
      break;
    case 9:
      txt1.Text = "1";
      txt2.Text = "1";
      lblModus.Caption = "Klik eens op elke knop.";
      show(cmdTekenen, cmdRechthoek, cmdEllips, cmdLijn, cmdUndo, cmdGom, lblModus);
      hide(cmdClear);
      break;
    case 10:
      txt3.Text = "1";
      showControl(imgPijl, true);
      show(picPalet, Shape1);
      hide(cmdEllips, cmdLijn, cmdUndo, cmdGom, cmdClear, lblModus);
      break;
    case 11:
      txt3.Text = "1";
      showControl(imgPijl, false);
      show(cmdOpvullen);
      hide(cmdTekenen);
      break;
    case 12:
      txt3.Text = "";
      show(cmdSpuitbus);
      hide(cmdOpvullen, cmdRechthoek);
      break;
    case 13:
      show(cmdTekenen, cmdSaveAs);
      hide(cmdSpuitbus, picPalet, Shape1);
      break;
    case 14:
      show(cmdOpenbestand);
      hide(cmdTekenen, cmdSaveAs);
      break;
    case 15:
      show(cmdPrint, cmdOpenbestand);
      break;
    case 16:
      show(cmdKleurplaat);
      hide(cmdPrint, cmdOpenbestand);
      break;
    case 17:
      showControl(picBlad, false);
      showControl(imgMuis, true);
      cmdSluiten.Left = 3720;
      cmdSluiten.Top = 5160;
      hide(cmdKleurplaat);
      break;
    default:
      break;
  }
}
