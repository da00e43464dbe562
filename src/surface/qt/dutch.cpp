// The toolkit's own texts in Dutch: the standard dialogs and the menus of text boxes.
#include <QCoreApplication>
#include <QTranslator>
#include <cstring>

#include "surface/qt/dialogs.h"

// The resource lies in a library, where nothing but this call would bring it along.
static void loadResource() { Q_INIT_RESOURCE(toolkit_dutch); }

namespace surface::qt {
namespace {

struct Text {
  const char* source;
  const char* dutch;
};

// What the toolkit's own translation says in words that a child need not know, by the English
// source; the same words mean the same wherever the toolkit uses them.
constexpr Text Texts[] = {
    {"&Pick Screen Color", "Kleur van het &scherm kiezen"},
    {"&Custom colors", "&Eigen kleuren"},
    {"&Val:", "&Licht:"},
    {"Parent Directory", "Map hoger"},
    {"My Computer", "Deze computer"},
    {"Date Modified", "Gewijzigd op"},
    {"Type", "Soort"},
    {"Folder", "Map"},
    {"File Folder", "Map"},
    {"File", "Bestand"},
    {"%1 File", "%1-bestand"},
    {"Drive", "Schijf"},
    {"Select All", "Alles kiezen"},
};

class Dutch : public QTranslator {
 public:
  using QTranslator::QTranslator;

  QString translate(const char* context, const char* source, const char* comment,
                    int count) const override {
    for (const Text& text : Texts)
      if (std::strcmp(text.source, source) == 0) return QString::fromUtf8(text.dutch);
    return QTranslator::translate(context, source, comment, count);
  }
  bool isEmpty() const override { return false; }
};

}  // namespace

void installDutch() {
  loadResource();
  auto* texts = new Dutch(QCoreApplication::instance());
  if (!texts->load(":/toolkit/qtbase_nl.qm")) qFatal("The Dutch texts are not in the program");
  QCoreApplication::installTranslator(texts);
}

}  // namespace surface::qt
