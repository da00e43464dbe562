// The large studio: the sheet, fifteen tools, seven panels, undo and files. This header is its
// table of contents; every group of handlers stands in the file named above it.
#pragma once

#include <cstdint>

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
  void cmdEinde_Click();
  void Slider2_Scroll();

  // tools.cpp: the tool buttons and the panels
  void ChooseTool(std::int16_t tool);
  void ChooseToolClosingPanels(std::int16_t tool);
  void OpenPanel(Frame& panel, const char* message);
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

  // fills.cpp: what acts at the press
  void Opvullen(const Mouse& at);
  void PatroonVullen(const Mouse& at);
  void KleurKiezen(const Mouse& at);

  // strokes.cpp: line styles, spray, art line, stamps
  void Lijnstijlen(const Mouse& at);
  void Spuiten(const Mouse& at);
  void KunstlijnBegin(const Mouse& at);
  void KunstlijnVolg(const Mouse& at);
  void StampAt(float X, float Y);

  // colours.cpp: palette, background, gradient swatches
  void picPalet_MouseDown(const Mouse& at);
  void picPalet_MouseMove(const Mouse& at);
  void picPalet_MouseUp(const Mouse& at);
  void cmdPalet_Click();
  void KiesVerloopkleur(PictureBox& swatch);

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

  // files/large_studio.cpp: opening, saving, the command line
  void cmdSaveAs_Click();
  void cmdOpenbestand_Click();
  void LoadCommandLine();

 private:
  enum class Sheet { White, AsItIs };
  void StartAnew(Sheet sheet);
  void WireTools();
  void WireSheet();
  void WireRest();

  // pointer.cpp
  bool BeginGeldig() const { return BeginX != 0 && BeginY != 0; }
  void WisBegin();
  void PotloodNeer(const Mouse& at);
  void PotloodVolg(const Mouse& at);
  void OvaalBegin(const Mouse& at);
  void OvaalVolg(const Mouse& at);
  void OvaalEinde();
  void GevuldeCirkel(const Mouse& at);
  void ToonMonster();

  std::int16_t Gereedschap = 1;

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

  // Art line and line styles
  std::int16_t KunstActief = 0;
  Kunstlijn kunst;
  std::int32_t LaatsteX = 0, LaatsteY = 0;

  // The loop counter of the stamps and the blue of the load colours: together the start of the line
  // on the bare form.
  float Teller = 0;
  float BeginBlauw = 0;

  std::int16_t ProgressMax = 0;
};
