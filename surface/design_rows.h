#pragma once
// The row most design tables write for a captioned control: what it is, its
// name and index, its words, its place and size, and what it stands in.
// A form's own small row makers fill in what is the same across their rows.
#include "surface/design.h"

namespace tessaron {

inline Design Row(ControlKind kind, const char* name, int index, const char* caption,
                  const char* tip, int left, int top, int width, int height,
                  const char* container = "") {
  return {.kind = kind,
          .name = name,
          .index = index,
          .caption = caption,
          .tip = tip,
          .left = left,
          .top = top,
          .width = width,
          .height = height,
          .container = container};
}

// A scroll bar: its place, what it stands in, and its range, its large step
// and where it starts. The small step is one.
inline Design ScrollRow(ControlKind kind, const char* name, int left, int top, int width,
                        int height, const char* container, int min, int max, int largeChange,
                        int value) {
  Design d = Row(kind, name, -1, "", "", left, top, width, height, container);
  d.min = min;
  d.max = max;
  d.largeChange = largeChange;
  d.value = value;
  return d;
}

}  // namespace tessaron
