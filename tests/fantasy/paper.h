// Two sheets of the same size: one for an animation, one for its slow, literal version.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>

#include "support/trace.h"
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

/// Calls that are seen are those a test is about; how a surface is cleared is its own business.
inline script::Trace allCalls(script::Trace trace) { return trace; }
inline script::Trace withoutClearing(script::Trace trace) {
  std::erase_if(trace,
                [](const script::Drawn& each) { return each.shape == script::Drawn::FilledBox; });
  return trace;
}

struct Papers {
  explicit Papers(const Form::Design& design, std::uint32_t seed) : ours(design), literal(design) {
    ourRandom.fix(seed);
    literalRandom.fix(seed);
  }

  /// One tick of each, told as a function of a surface and the random numbers. They draw the same
  /// shapes in the same order, show the same, and draw as many random numbers.
  template <class OurTick, class LiteralTick>
  testing::AssertionResult agree(OurTick ourTick, LiteralTick literalTick,
                                 script::Trace (*seen)(script::Trace) = allCalls) {
    const auto drawn = seen(script::traceOf([&] { ourTick(ours, ourRandom); }));
    const auto told = seen(script::traceOf([&] { literalTick(literal, literalRandom); }));
    const auto [a, b] = std::mismatch(drawn.begin(), drawn.end(), told.begin(), told.end());
    if (a != drawn.end() && b != told.end())
      return testing::AssertionFailure() << "drawn: " << *a << "; told: " << *b;
    if (drawn.size() != told.size())
      return testing::AssertionFailure() << drawn.size() << " shapes, not " << told.size();
    calls += drawn.size();
    return look();
  }

  Form ours, literal;
  surface::Random ourRandom, literalRandom;
  std::size_t calls = 0;  ///< that were held against each other

 private:
  testing::AssertionResult look() const {
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
