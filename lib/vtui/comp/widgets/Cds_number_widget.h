#ifndef VTUI_COMP_CDS_NUMBER_WIDGET_H
#define VTUI_COMP_CDS_NUMBER_WIDGET_H

#include "vtui/comp/widgets/Cds_widget_mixin.h"
#include "vtui/comp/widgets/Number_widget.h"

namespace VT::Comp {

/// A number field whose number is a variable of the central data store, in engineering units. What the operator enters,
/// and what increment() and decrement() give, is written there, converted to T as Conversion::to_number() does it, and
/// not held within T's range or the field's limits. What is written there by anyone is shown, held within the limits as
/// set_value() does it, by the thread that calls CDS::Head::deliver(): the one that owns the field; for the first time
/// with the next delivery. set_value() alone shows a value that the store does not have.
template <class T>
class VTUI_EXPORT Cds_number_widget : public Number_widget, public Cds_widget_mixin<T, Cds_number_widget<T>>
{
    using Mixin = Cds_widget_mixin<T, Cds_number_widget>;

  public:
    // As those of Number_widget. They throw std::out_of_range if the variable lies outside of the store's data.

    Cds_number_widget(CDS::Head& head, T& bound, const Style& style, const Specification& s0, const Specification& s1,
                      const Specification& s2, VT::String_variable_obj* units_text);
    Cds_number_widget(CDS::Head& head, T& bound, const Style& style, const Specification& s0, const Specification& s1,
                      VT::String_variable_obj* units_text);
    Cds_number_widget(CDS::Head& head, T& bound, const Style& style, const Specification& all,
                      VT::String_variable_obj* units_text);
    Cds_number_widget(CDS::Head& head, T& bound, const Style& style, VT::String_variable_obj* units_text);

    /// Writes the store, not with its lock held. The field keeps showing what was entered if what T makes of it looks
    /// the same on the terminal; otherwise the next delivery shows what is stored.
    void handle_input_value(double v) override;
    /// Shows a value of the store.
    void handle_cds_value(T v);

    using Number_widget::handle_event;
    /// As that of Number_widget; but where the limits of one system have cut what the store holds, the next system
    /// starts from what the store holds, not from what was left. Not with the store's lock held.
    void handle_event(Units_man& units_man);
};

/// All types that T may be.
#define VTUI_FOR_CDS_NUMBERS(apply)                                                                                    \
    apply(double);                                                                                                     \
    apply(float);                                                                                                      \
    apply(unsigned char);                                                                                              \
    apply(signed char);                                                                                                \
    apply(unsigned short);                                                                                             \
    apply(short);                                                                                                      \
    apply(int);                                                                                                        \
    apply(unsigned int);                                                                                               \
    apply(long long);                                                                                                  \
    apply(unsigned long long)

#define VTUI_DECLARE(T)                                                                                                \
    extern template class Cds_widget_mixin<T, Cds_number_widget<T>>;                                                   \
    extern template class Cds_number_widget<T>
VTUI_FOR_CDS_NUMBERS(VTUI_DECLARE);
#undef VTUI_DECLARE

} // namespace VT::Comp

#endif
