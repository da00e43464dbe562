// Units: how the inside of a form, a frame or a picture box is measured, and how a place in it
// becomes a pixel.
#pragma once

namespace surface {

inline constexpr double TwipsPerPixel = 15;
inline constexpr double TwipsPerCentimetre = 1440 / 2.54;

/// The unit of coordinates: user scale, twips, pixels or centimetres.
enum ScaleUnit { ScaleUser = 0, ScaleTwips = 1, ScalePixels = 3, ScaleCentimetres = 7 };

/// A length converted from one unit to another, in single precision; both directions have square
/// pixels.
float ScaleX(float value, ScaleUnit from, ScaleUnit to);
float ScaleY(float value, ScaleUnit from, ScaleUnit to);

struct PointF {
  float X = 0;
  float Y = 0;
  friend bool operator==(const PointF&, const PointF&) = default;
};

struct SizeF {
  float Width = 0;
  float Height = 0;
  friend bool operator==(const SizeF&, const SizeF&) = default;
};

/// A scale of the program's own: what the upper left corner of the inner area is called, and how
/// far it is to the lower right one. Neither extent is 0; a negative one counts leftwards or
/// upwards.
struct UserScale {
  PointF Origin = {};
  SizeF Extent = {};
  friend bool operator==(const UserScale&, const UserScale&) = default;
};

/// A unit together with the inner size in pixels, which a user scale is stretched over.
class Scale {
 public:
  /// `user` counts if it has an extent; otherwise `unit`.
  Scale(ScaleUnit unit, const UserScale& user);

  ScaleUnit unit() const { return unit_; }
  const UserScale& user() const { return user_; }
  /// Negative where the scale runs against the pixels.
  double pixelsPerUnitX() const { return perX_; }
  double pixelsPerUnitY() const { return perY_; }

  /// A position, with its fraction of a pixel. In double precision from the first step on: a
  /// distance from the origin rounded to single may end in the pixel beside.
  double toPixelX(double x) const { return (x - user_.Origin.X) * perX_; }
  double toPixelY(double y) const { return (y - user_.Origin.Y) * perY_; }
  float fromPixelX(double pixel) const {
    return static_cast<float>(pixel / perX_ + user_.Origin.X);
  }
  float fromPixelY(double pixel) const {
    return static_cast<float>(pixel / perY_ + user_.Origin.Y);
  }
  /// The inner size in this scale.
  float width() const;
  float height() const;

  /// The inner size in pixels.
  void setInner(int width, int height);
  /// BadPropertyValue for an extent of 0.
  void setUser(const UserScale& user);

  friend bool operator==(const Scale&, const Scale&) = default;

 private:
  void measure();

  ScaleUnit unit_;
  UserScale user_;
  int innerWidth_ = 0, innerHeight_ = 0;
  double perX_ = 1, perY_ = 1;
};

}  // namespace surface
