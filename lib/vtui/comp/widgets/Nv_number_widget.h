#ifndef VTUI_COMP_NV_NUMBER_WIDGET_H
#define VTUI_COMP_NV_NUMBER_WIDGET_H

#include "nv_store/Access.h"
#include "nv_store/NV_number.h"
#include "vtui/comp/widgets/Number_widget.h"
#include "vtui/comp/widgets/Visible_event.h"

namespace VT::Comp {

/// A number field whose number is one of the non-volatile store, in engineering units; the number outlives it. What the
/// operator enters, and what increment() and decrement() give, is set there, converted as Conversion::to_number() does
/// it, and not held within the type's range or the field's limits. Between start() and stop(), or while it is visible,
/// the field shows what is stored, whoever set it, held within its limits as set_value() does it; otherwise it keeps
/// showing what it showed last. All of this happens on the thread that owns the field and calls the waiter's deliver().
template <class N>
class VTUI_EXPORT Nv_number_widget : public Number_widget, public NV_store::Access<N, NV_store::Virt_access>
{
    using Access = NV_store::Access<N, NV_store::Virt_access>;

  public:
    // As those of Number_widget.

    Nv_number_widget(N& number, const Style& style, const Specification& s0, const Specification& s1,
                     const Specification& s2, VT::String_variable_obj* units_text);
    Nv_number_widget(N& number, const Style& style, const Specification& s0, const Specification& s1,
                     VT::String_variable_obj* units_text);
    Nv_number_widget(N& number, const Style& style, const Specification& all, VT::String_variable_obj* units_text);
    Nv_number_widget(N& number, const Style& style, VT::String_variable_obj* units_text);

    /// As that of Number_widget, with the units texts of the constructor or else of the units manager.
    void init(VT::vtui_pool* pool);

    /// Shows what is stored, and from then on every change that the waiter delivers.
    void start(waiter_descriptor* waiter);
    void stop(waiter_descriptor* waiter);

    using Number_widget::handle_event;
    /// start() or stop().
    void handle_event(Visible_event event);
    /// As that of Number_widget; but where the limits of one system have cut what is stored, the next system starts
    /// from what is stored, not from what was left.
    void handle_event(Units_man& units_man);

    /// Sets the stored number. The field keeps showing what was entered if what the number's type makes of it looks the
    /// same on the terminal; otherwise the next delivery shows what is stored.
    void handle_input_value(double v) override;
    /// Shows the stored number, which has changed.
    void handle_event() override;
};

/// All numbers that N may be: type, and code of Data_item.
#define VTUI_FOR_NV_NUMBERS(apply)                                                                                     \
    apply(bool, 2);                                                                                                    \
    apply(unsigned char, 4);                                                                                           \
    apply(unsigned short, 5);                                                                                          \
    apply(unsigned int, 6);                                                                                            \
    apply(signed char, 7);                                                                                             \
    apply(short, 8);                                                                                                   \
    apply(int, 9);                                                                                                     \
    apply(float, 10);                                                                                                  \
    apply(double, 11);                                                                                                 \
    apply(unsigned long long, 15);                                                                                     \
    apply(long long, 16)

#define VTUI_NV_NUMBER_WIDGET(T, code)                                                                                 \
    template class Nv_number_widget<NV_store::NV_number<T, static_cast<Data_item::item_type_t>(code)>>
#define VTUI_DECLARE(T, code) extern VTUI_NV_NUMBER_WIDGET(T, code)
VTUI_FOR_NV_NUMBERS(VTUI_DECLARE);
#undef VTUI_DECLARE

} // namespace VT::Comp

#endif
