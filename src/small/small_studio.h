// The engine of the small studio: six tools, a palette, one step back, files. The form for drawing
// and the form of the course are this with their own layout; what else they do differently stands
// in their own files.
#pragma once

#include <cstdint>

#include "small/small_studio_controls.h"

class SmallStudio : public SmallStudioControls {
 public:
  // small_studio.cpp: the start, the tools, colours, undo, wiping
  virtual void Form_Load();
  void chooseTool(std::int16_t tool);
  void Slider1_Scroll();
  void picPalet_MouseDown(const Mouse& at);
  void picPalet_MouseMove(const Mouse& at);
  void picPalet_MouseUp(const Mouse& at);
  void UndoBuffer();
  void cmdGom_Click();
  void cmdUndo_Click();
  void cmdClear_Click();

  // small_pointer.cpp: the three handlers of the sheet
  void picBlad_MouseDown(const Mouse& at);
  void picBlad_MouseMove(const Mouse& at);
  void picBlad_MouseUp(const Mouse& at);

  // files/small_studio_files.cpp: opening, saving, printing, the command line
  void cmdSaveAs_Click();
  void cmdOpenbestand_Click();
  void cmdPrint_Click();
  void LoadCommandLine();

 protected:
  explicit SmallStudio(const SmallStudioLayout& layout);

  /// Pointer, message, undo and whatever else goes with the tool that was chosen.
  virtual void applyTool();

  std::int16_t Gereedschap = 1;

 private:
  void showInHand(CommandButton& chosen);
  void askToSave();

  void fill(const Mouse& at);
  void spray(const Mouse& at);
  void followPencil(const Mouse& at);
  void beginOval(const Mouse& at);
  void followOval(const Mouse& at);
  void endOval();
  void endShape(const Mouse& at, surface::BoxFlag flag);

  CommandButton* inHand = nullptr;  ///< of all tools the one that looks pressed

  // The shape that is being dragged; 0 in either value means that none has begun.
  float BeginX = 0;
  std::int16_t BeginY = 0;
  std::int16_t LijnBezig = 0, RechthoekBezig = 0;
  float OvaalX = 0, OvaalY = 0, OvaalDX = 0, OvaalDY = 0;
  std::int16_t OvaalStraal = 0;

  double PenX = 0, PenY = 0, VorigePenX = 0, VorigePenY = 0;
  std::int16_t PaletBezig = 0;
};
