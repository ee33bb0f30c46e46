#include "vtui/comp/widgets/Nv_number_widget.h"

#include "util/Conversion.h"

namespace VT::Comp {

template <class N>
Nv_number_widget<N>::Nv_number_widget(N& number, const Style& style, const Specification& s0, const Specification& s1,
                                      const Specification& s2, VT::String_variable_obj* units_text)
    : Number_widget(style, s0, s1, s2, units_text), Access(number)
{}

template <class N>
Nv_number_widget<N>::Nv_number_widget(N& number, const Style& style, const Specification& s0, const Specification& s1,
                                      VT::String_variable_obj* units_text)
    : Number_widget(style, s0, s1, units_text), Access(number)
{}

template <class N>
Nv_number_widget<N>::Nv_number_widget(N& number, const Style& style, const Specification& all,
                                      VT::String_variable_obj* units_text)
    : Number_widget(style, all, units_text), Access(number)
{}

template <class N>
Nv_number_widget<N>::Nv_number_widget(N& number, const Style& style, VT::String_variable_obj* units_text)
    : Number_widget(style, units_text), Access(number)
{}

template <class N>
void Nv_number_widget<N>::init(VT::vtui_pool* pool)
{
    Number_widget::init(pool, nullptr);
}

template <class N>
void Nv_number_widget<N>::start(waiter_descriptor* waiter)
{
    handle_event();
    Access::autoreg(waiter, true);
}

template <class N>
void Nv_number_widget<N>::stop(waiter_descriptor* waiter)
{
    Access::autounreg(waiter);
}

template <class N>
void Nv_number_widget<N>::handle_event(Visible_event event)
{
    if (event.visible)
        start(event.waiter);
    else
        stop(event.waiter);
}

template <class N>
void Nv_number_widget<N>::handle_input_value(double v)
{
    const auto x = Conversion::to_number<typename N::value_type>(v);
    Access::number().set(x);
    // What looks as it was entered is shown already. Otherwise it may have been stored before, and be no news.
    if (looks_like(static_cast<double>(x)))
        Access::settle(NV_store::to_bits(x));
    else
        Access::ask();
}

template <class N>
void Nv_number_widget<N>::handle_event()
{
    set_value(static_cast<double>(Access::read()));
}

template <class N>
void Nv_number_widget<N>::handle_event(Units_man& units_man)
{
    switch_units(units_man, static_cast<double>(Access::number().get()));
}

#define VTUI_INSTANTIATE(T, code) VTUI_NV_NUMBER_WIDGET(T, code)
VTUI_FOR_NV_NUMBERS(VTUI_INSTANTIATE);

} // namespace VT::Comp
