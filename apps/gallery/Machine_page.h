#ifndef GALLERY_MACHINE_PAGE_H
#define GALLERY_MACHINE_PAGE_H

#include "apps/gallery/Machine.h"
#include "apps/gallery/Number_page.h"

#include "vtui/comp/widgets/Cds_number_widget.h"

namespace gallery {

/// A machine at work: at the left what it does, at the right what the operator sets while it does so. The soft keys
/// step the speed.
class Machine_page final : public Number_page
{
  public:
    Machine_page(Page_style& page_style, Machine& machine);

  private:
    template <class T>
    using Field = VT::Comp::Cds_number_widget<T>;

    void add(const char* name, VT::Comp::Number_widget& field, int x, int y);

    VT::Comp::Rectangle_obj frame;
    Field<double> speed;
    Field<float> pressure;
    Field<double> tank, area_done;
    Field<double> target_speed;
    Field<unsigned short> rate;
};

} // namespace gallery

#endif
