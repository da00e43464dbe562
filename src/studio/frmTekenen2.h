// The large studio: the sheet, fifteen tools, seven panels, undo and files. This header is its
// table of contents; every group of handlers stands in the file named above it.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "studio/frmTekenen2_controls.h"
#include "studio/kunstlijn.h"

class frmTekenen2 : public frmTekenen2_controls {
 public:
  frmTekenen2();

  // frmTekenen2.cpp: the frame
  void Form_Load();
  void Form_MouseUp(const Mouse& at);
  void ClosePanels();
  void FirstTool();
  void ApplyTool();
  void SetProgressMax();
  void Command1_Click();
  void cmdEinde_Click();
  void Slider2_Scroll();

  // tools.cpp: the tool buttons and the panels
  void cmdLijnen_Click();
  void cmdLineaal_Click();
  void Slider1_Scroll();
  void cboStijl_Click();
  void Option5_Click(int index);
  void picBorstel_Click(int number);

  // pointer.cpp: the three handlers of the sheet
  void picBlad_MouseDown(const Mouse& at);
  void picBlad_MouseMove(const Mouse& at);
  void picBlad_MouseUp(const Mouse& at);

  // strokes.cpp
  void StampAt(float X, float Y);

  // colours.cpp: palette, background, gradient swatches
  void picPalet_MouseDown(const Mouse& at);
  void picPalet_MouseMove(const Mouse& at);
  void picPalet_MouseUp(const Mouse& at);
  void cmdPalet_Click();

  // eraser.cpp
  void cmdGom_Click();
  void cmdGommen_Click();
  void picGommen_Click();
  void Slider3_Scroll();

  // undo.cpp
  void UndoBuffer();
  void RedoBuffer();
  void PrepareEffect();
  void cmdUndo_Click();
  void cmdRedo_Click();

  // sheet.cpp: wiping, a new sheet, another size
  void cmdClear_Click();
  void cmdNieuw_Click();
  void cmdFormaat_Click();

  // rulers.cpp
  void Option1_Click();
  void Option2_Click();
  void Option3_Click();
  void Option4_Click();

  // clipboard.cpp
  void cmdKnippen_Click();
  void cmdCopy_Click();
  void cmdPlakken_Click();

  // effects/effecten.cpp: the effects panel and the progress that follows an effect
  void announceEffect(const std::string& name);
  void FinishEffect();
  void loading();
  /// Puts pixels of the sheet's size in place of its own; its Picture stays.
  void replacePixels(raster::Bitmap pixels);
  void cmdVervagen_Click();
  void cmdVerscherpen_Click();
  void cmdRelief_Click();
  void cmdVerspreiden_Click();
  void cmdOmkeren_Click();
  void cmdHelderheid_Click();
  void cmdHamerslag_Click();
  void cmdZaagrand_Click();
  void cmdGrijswaarden_Click();
  void cmdVervangKleur_Click();
  void Timer2_Timer();

  // effects/overgang.cpp: the gradient panel
  void cmdGradient2_MouseDown(const Mouse& at);
  void cmdGradient2_Click();

  // effects/spiegelen.cpp: mirroring, and the dialog that turns
  void cmdSpiegelH_Click();
  void cmdSpiegelV_Click();
  void cmdRoteren_Click();

  // effects/zoomen.cpp: the magnifier
  void cmdZoom_Click();

  // text/placing.cpp: a place for a text
  bool askForText(const Mouse& at);

  // files/large_studio.cpp: opening, saving, printing, the command line
  void cmdSaveAs_Click();
  void cmdOpenbestand_Click();
  void cmdPrint_Click();
  void LoadCommandLine();

 private:
  // frmTekenen2.cpp
  enum class Background { White, AsItIs };
  void startAnew(Background background);
  void showInHand(surface::Control* chosen);
  void wireTools();
  void wireSheet();
  void wireRest();
  void wireEffects();

  // tools.cpp
  void chooseTool(std::int16_t tool);
  void chooseToolClosingPanels(std::int16_t tool);
  void openPanel(Frame& panel, const char* message);
  std::array<PictureBox*, 13> stamps();

  // pointer.cpp
  void setBrush(bool filling);
  bool hasBegun() const { return BeginX != 0 && BeginY != 0; }
  void forgetBegin();
  void penDown(const Mouse& at);
  void penMove(const Mouse& at);
  void beginOval(const Mouse& at);
  void stretchOval(const Mouse& at);
  void endOval();
  void drawFilledCircle(const Mouse& at);
  void showSample();

  // fills.cpp: what acts at the press
  void fill(const Mouse& at);
  void fillWithPattern(const Mouse& at);
  void pickColor(const Mouse& at);

  // strokes.cpp: what a moving pointer leaves besides plain lines
  void followLineStyle(const Mouse& at);
  void spray(const Mouse& at);
  void beginArtLine(const Mouse& at);
  void chaseArtLine(const Mouse& at);

  // colours.cpp
  Color paletteColor(const Mouse& at) const;
  void chooseGradientColor(PictureBox& swatch);

  // eraser.cpp
  void takeEraser();

  // effects
  void beginEffect(const std::string& name);
  void mirror(bool leftToRight);
  void feedMagnifier(const Mouse& at);

  // files/large_studio.cpp
  void askToSave();

  std::int16_t Gereedschap = 1;
  surface::Control* InDeHand = nullptr;  // the tool or stamp that looks pressed

  // The shape that is being dragged; 0 in either value means that none has begun.
  float BeginX = 0;
  std::int16_t BeginY = 0;
  std::int16_t LijnBezig = 0, RechthoekBezig = 0;
  float OvaalX = 0, OvaalY = 0, OvaalDX = 0, OvaalDY = 0;
  std::int16_t OvaalStraal = 0;

  // Freehand
  double PenX = 0, PenY = 0, VorigePenX = 0, VorigePenY = 0;
  std::int16_t MuisX = 0, MuisY = 0;

  // Stamps, fills, palette
  int Borstel = 0;
  int Patroon = 0;
  std::int16_t PaletBezig = 0;
  bool VerloopGekozen = false;  // whether a gradient's colour was ever chosen

  // Art line and line styles
  std::int16_t KunstActief = 0;
  Kunstlijn kunst;
  std::int32_t LaatsteX = 0, LaatsteY = 0;

  // The loop counter of the stamps and the blue of the load colours: together the start of the line
  // on the bare form.
  float Teller = 0;
  float BeginBlauw = 0;

  std::int16_t ProgressMax = 0, ProgressCount = 0;
};
