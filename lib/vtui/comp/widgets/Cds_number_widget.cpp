#include "vtui/comp/widgets/Cds_number_widget.h"

#include "util/Conversion.h"

namespace VT::Comp {

template <class T>
Cds_number_widget<T>::Cds_number_widget(CDS::Head& head, T& bound, const Style& style, const Specification& s0,
                                        const Specification& s1, const Specification& s2,
                                        VT::String_variable_obj* units_text)
    : Number_widget(style, s0, s1, s2, units_text), Mixin(head, bound)
{}

template <class T>
Cds_number_widget<T>::Cds_number_widget(CDS::Head& head, T& bound, const Style& style, const Specification& s0,
                                        const Specification& s1, VT::String_variable_obj* units_text)
    : Number_widget(style, s0, s1, units_text), Mixin(head, bound)
{}

template <class T>
Cds_number_widget<T>::Cds_number_widget(CDS::Head& head, T& bound, const Style& style, const Specification& all,
                                        VT::String_variable_obj* units_text)
    : Number_widget(style, all, units_text), Mixin(head, bound)
{}

template <class T>
Cds_number_widget<T>::Cds_number_widget(CDS::Head& head, T& bound, const Style& style,
                                        VT::String_variable_obj* units_text)
    : Number_widget(style, units_text), Mixin(head, bound)
{}

template <class T>
void Cds_number_widget<T>::handle_input_value(double v)
{
    const T x = Conversion::to_number<T>(v);
    Mixin::write(x, looks_like(static_cast<double>(x)));
}

template <class T>
void Cds_number_widget<T>::handle_cds_value(T v)
{
    set_value(static_cast<double>(v));
}

template <class T>
void Cds_number_widget<T>::handle_event(Units_man& units_man)
{
    if (Mixin::is_bound())
        switch_units(units_man, static_cast<double>(Mixin::read()));
    else
        switch_units(units_man);
}

#define VTUI_INSTANTIATE(T)                                                                                            \
    template class Cds_widget_mixin<T, Cds_number_widget<T>>;                                                          \
    template class Cds_number_widget<T>
VTUI_FOR_CDS_NUMBERS(VTUI_INSTANTIATE);

} // namespace VT::Comp
