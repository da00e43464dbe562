// Expecting an error of the program's logic, by its kind.
// An error of another kind, or none, fails the test.
#pragma once

#include <gtest/gtest.h>

#include "surface/errors.h"

/// Fails unless `statement` raises a RuntimeError of the given ErrorKind.
#define EXPECT_ERROR(expected, statement)                                      \
  EXPECT_THROW(                                                                \
      {                                                                        \
        try {                                                                  \
          static_cast<void>(statement);                                        \
        } catch (const surface::RuntimeError& error) {                         \
          EXPECT_EQ(error.kind, surface::ErrorKind::expected) << error.what(); \
          throw;                                                               \
        }                                                                      \
      },                                                                       \
      surface::RuntimeError)
