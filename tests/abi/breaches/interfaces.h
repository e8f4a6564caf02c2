// Interfaces with every mistake that makes two compilers disagree; the slot check must find each of them.
#pragma once

#include <cstdint>

struct Point {
  double x;
  double y;
  double z;
};

struct Overloaded {
  virtual void Set(std::int32_t value) = 0;
  virtual void Set(double value) = 0;
};

struct Destroyed {
  virtual void First() = 0;
  virtual ~Destroyed() = default;
  virtual void Last() = 0;
};

struct ByValue {
  virtual Point GetPoint() = 0;
  virtual void SetPoint(Point point) = 0;
};

struct Reordered {
  virtual void Second() = 0;
  virtual void First() = 0;
};

struct Unlisted {
  virtual void Anything() = 0;
};

struct Left {
  virtual void DoLeft() = 0;
};

struct Right {
  virtual void DoRight() = 0;
};

struct TwoBases : Left, Right {};
