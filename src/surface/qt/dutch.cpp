// The toolkit's own texts in Dutch: the standard dialogs and the menus of text boxes.
#include <QCoreApplication>
#include <QTranslator>
#include <cstring>

#include "surface/qt/dialogs.h"

namespace surface::qt {
namespace {

struct Text {
  const char* source;
  const char* dutch;
};

// By their English source; the same words mean the same wherever the toolkit uses them.
constexpr Text Texts[] = {
    {"&Basic colors", "&Basiskleuren"},
    {"&Pick Screen Color", "Kleur van het &scherm kiezen"},
    {"Cursor at %1, %2\nPress ESC to cancel", "Pijl op %1, %2\nEsc om te stoppen"},
    {"&Custom colors", "&Eigen kleuren"},
    {"&Add to Custom Colors", "Aan eigen kleuren &toevoegen"},
    {"Hu&e:", "&Tint:"},
    {"&Sat:", "&Verz:"},
    {"&Val:", "&Licht:"},
    {"&Red:", "&Rood:"},
    {"&Green:", "&Groen:"},
    {"Bl&ue:", "Bla&uw:"},
    {"&HTML:", "&HTML:"},
    {"OK", "OK"},
    {"&OK", "&OK"},
    {"Cancel", "Annuleren"},
    {"&Cancel", "&Annuleren"},
    {"&Yes", "&Ja"},
    {"&No", "&Nee"},
    {"Close", "Sluiten"},
    {"&Open", "&Openen"},
    {"&Save", "Op&slaan"},
    {"Back", "Terug"},
    {"Go back", "Terug"},
    {"Forward", "Vooruit"},
    {"Go forward", "Vooruit"},
    {"Parent Directory", "Map hoger"},
    {"Go to the parent directory", "Naar de map erboven"},
    {"Create New Folder", "Nieuwe map"},
    {"Create a New Folder", "Een nieuwe map maken"},
    {"&New Folder", "&Nieuwe map"},
    {"New Folder", "Nieuwe map"},
    {"List View", "Lijst"},
    {"Change to list view mode", "Als lijst tonen"},
    {"Detail View", "Details"},
    {"Change to detail view mode", "Met details tonen"},
    {"Sidebar", "Zijbalk"},
    {"List of places and bookmarks", "Plaatsen"},
    {"Files", "Bestanden"},
    {"Computer", "Computer"},
    {"My Computer", "Deze computer"},
    {"&Rename", "&Naam wijzigen"},
    {"&Delete", "&Wissen"},
    {"Show &hidden files", "&Verborgen bestanden tonen"},
    {"Name", "Naam"},
    {"Size", "Grootte"},
    {"Type", "Soort"},
    {"Kind", "Soort"},
    {"Date Modified", "Gewijzigd op"},
    {"Folder", "Map"},
    {"File Folder", "Map"},
    {"File", "Bestand"},
    {"%1 File", "%1-bestand"},
    {"Drive", "Schijf"},
    {"Remove", "Weghalen"},
    {"Directory:", "Map:"},
    {"Delete", "Wissen"},
    {"%1\nFile not found.\nPlease verify the correct file name was given.",
     "%1\nDit bestand is er niet.\nKijk de naam nog eens na."},
    {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
     "%1\nDeze map is er niet.\nKijk de naam nog eens na."},
    {"&Undo", "&Ongedaan maken"},
    {"&Redo", "&Opnieuw"},
    {"Cu&t", "K&nippen"},
    {"&Copy", "&Kopiëren"},
    {"&Paste", "&Plakken"},
    {"Select All", "Alles kiezen"},
};

class Dutch : public QTranslator {
 public:
  using QTranslator::QTranslator;

  QString translate(const char*, const char* source, const char*, int) const override {
    for (const Text& text : Texts)
      if (std::strcmp(text.source, source) == 0) return QString::fromUtf8(text.dutch);
    return {};
  }
  bool isEmpty() const override { return false; }
};

}  // namespace

void installDutch() {
  QCoreApplication::installTranslator(new Dutch(QCoreApplication::instance()));
}

}  // namespace surface::qt
