#ifndef TERMINAL_SCREEN_LAYOUT_H
#define TERMINAL_SCREEN_LAYOUT_H

#include "terminal/Area.h"
#include "terminal/Hardware.h"

#include <algorithm>

namespace terminal {

/// Where things stand on the screen: the mask at the left, at its right the column of soft key cells. Cells that do not
/// fit below each other go on in a further column.
class Screen_layout
{
  public:
    explicit Screen_layout(const Hardware& hardware)
        : size(hardware.mask_size), cell_width(hardware.soft_key_width), cell_height(hardware.soft_key_height),
          cells(hardware.physical_soft_keys), rows(cell_height == 0 ? 1 : std::max(1, size / cell_height))
    {}

    Area screen() const { return {0, 0, size + (cells + rows - 1) / rows * cell_width, size}; }
    Area mask() const { return {0, 0, size, size}; }
    Area keys() const { return {size, 0, screen().right, size}; }

    int n_cells() const { return cells; }
    Area cell(int number) const
    {
        const Area first{size, 0, size + cell_width, cell_height};
        return first.moved(number / rows * cell_width, number % rows * cell_height) & keys();
    }

  private:
    int size;
    int cell_width;
    int cell_height;
    int cells;
    int rows;
};

} // namespace terminal

#endif
