// What the fantasy screens share: their look.
#pragma once

#include <string>

#include "surface/surface.h"

namespace fantasie {

inline constexpr surface::Color Lichtgrijs = 0xE0E0E0;

/// A maximised window with the title of its animation.
inline surface::Form::Design scherm(const std::string& titel, surface::Color achtergrond,
                                    surface::ScaleUnit eenheid = surface::ScaleTwips) {
  return {.Caption = "KRAS PRET  -  MET ENIGE FANTASIE  KIJKEN  -  " + titel,
          .BackColor = achtergrond,
          .Maximised = true,
          .ScaleMode = eenheid};
}

inline surface::CommandButton::Design knop(const surface::Control::Place& plaats, const char* tekst,
                                           surface::Color kleur) {
  return {.Left = plaats.Left,
          .Top = plaats.Top,
          .Width = plaats.Width,
          .Height = plaats.Height,
          .Caption = tekst,
          .BackColor = kleur,
          .Font = {"Arial", 15.75f, true}};
}

/// A button that waits for another one in its place.
inline surface::CommandButton::Design reserve(const surface::Control::Place& plaats,
                                              const char* tekst, surface::Color kleur) {
  auto ontwerp = knop(plaats, tekst, kleur);
  ontwerp.Enabled = ontwerp.Visible = false;
  return ontwerp;
}

inline surface::Label::Design opschrift(const surface::Control::Place& plaats, const char* tekst,
                                        surface::Color achtergrond,
                                        surface::Color letters = surface::Black) {
  return {.Left = plaats.Left,
          .Top = plaats.Top,
          .Width = plaats.Width,
          .Height = plaats.Height,
          .Caption = tekst,
          .BackColor = achtergrond,
          .ForeColor = letters,
          .Font = {"Arial", 12, true}};
}

inline void toon(surface::CommandButton& knop) {
  knop.Enabled = true;
  knop.Visible = true;
}

inline void verberg(surface::CommandButton& knop) {
  knop.Enabled = false;
  knop.Visible = false;
}

/// For good: until its interval is set again.
inline void stop(surface::TimerControl& timer) {
  timer.Interval = 0;
  timer.Enabled = false;
}

}  // namespace fantasie
