// A pointer that says "wait" when statements take long.
#pragma once

/// While one lives the pointer changes as soon as it has lived for half a second and a statement
/// runs.
class Beschäftigt {
  public:
    Beschäftigt();
    ~Beschäftigt();
    Beschäftigt(const Beschäftigt &) = delete;
    Beschäftigt &operator=(const Beschäftigt &) = delete;
};
