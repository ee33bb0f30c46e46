#ifndef BENCH_LARGE_POOL_H
#define BENCH_LARGE_POOL_H

#include "vt/Working_set_obj.h"
#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/objects/Button_obj.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/N_state_pointer_obj.h"
#include "vtui/comp/objects/Output_number_obj.h"
#include "vtui/comp/objects/Output_string_obj.h"
#include "vtui/comp/objects/String_variable_obj.h"

#include <cstddef>
#include <deque>

namespace bench {

/// The objects of as many screens as it takes: a working set whose masks are full of rows, each ten objects of the
/// kinds that implements use.
class Large_pool
{
  public:
    explicit Large_pool(std::size_t objects);

    VT::Working_set_obj working_set{"large"};

  private:
    struct Row
    {
        explicit Row(VT::Comp::Connection_elements& style);

        VT::Comp::Container_obj container;
        VT::Comp::Child_placements_array<Array_array_4> placements;
        VT::Comp::Rectangle_obj background;
        VT::Comp::Output_number_obj number;
        VT::Comp::Output_string_obj units;
        VT::Comp::String_variable_obj<4> units_text;
        VT::Comp::Rectangle_obj off;
        VT::Comp::Rectangle_obj on;
        VT::Comp::N_state_pointer_obj<2> lamp{{&off, &on}};
        VT::Comp::Button_obj button;
        VT::Comp::Child_placements_array<Array_array_1> face;
        VT::Comp::Output_string_obj caption;
    };

    static constexpr std::size_t objects_per_row = 10;
    static constexpr std::size_t rows_per_mask = 100;

    VT::Comp::Connection_elements style;
    std::deque<Row> rows;
    std::deque<VT::Data_mask_obj> masks;
};

} // namespace bench

#endif
