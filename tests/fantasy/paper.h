// Two sheets of the same size: one for an animation, one for its slow, literal version.
#pragma once

#include <gtest/gtest.h>

#include "surface/form.h"
#include "surface/numbers.h"
#include "surface/random.h"

namespace fantasy {

using surface::Form;

/// A form without a window is nothing but a surface.
inline Form::Design paper(int width, int height, surface::Color back,
                          surface::ScaleUnit unit = surface::ScaleTwips) {
  return {.BackColor = back,
          .Width = static_cast<float>(width * 15),
          .Height = static_cast<float>(height * 15),
          .ScaleMode = unit};
}

struct Papers {
  explicit Papers(const Form::Design& design, std::uint32_t seed) : ours(design), literal(design) {
    ourRandom.fix(seed);
    literalRandom.fix(seed);
  }

  /// Both show the same, and both have drawn as many random numbers.
  testing::AssertionResult agree() {
    const auto a = ours.bitmap(), b = literal.bitmap();
    for (int y = 0; y < a->height(); ++y)
      for (int x = 0; x < a->width(); ++x)
        if (a->at(x, y) != b->at(x, y))
          return testing::AssertionFailure() << "(" << x << ", " << y << ") is " << std::hex
                                             << a->at(x, y) << ", not " << b->at(x, y);
    auto next = ourRandom, literalNext = literalRandom;
    if (next.Rnd() != literalNext.Rnd()) return testing::AssertionFailure() << "random numbers";
    return testing::AssertionSuccess();
  }

  Form ours, literal;
  surface::Random ourRandom, literalRandom;
};

/// The pixels of a surface that do not have a colour.
inline int painted(const Form& form, surface::Color back) {
  const auto pixels = form.bitmap();
  int count = 0;
  for (int y = 0; y < pixels->height(); ++y)
    for (int x = 0; x < pixels->width(); ++x) count += pixels->at(x, y) != surface::toPixel(back);
  return count;
}

}  // namespace fantasy
