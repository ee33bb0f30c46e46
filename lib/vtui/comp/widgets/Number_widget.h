#ifndef VTUI_COMP_NUMBER_WIDGET_H
#define VTUI_COMP_NUMBER_WIDGET_H

#include "units/Units_man.h"
#include "vt/Event.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Font_attributes_obj.h"
#include "vtui/comp/objects/Has_child_placements.h"
#include "vtui/comp/objects/Input_number_obj.h"
#include "vtui/comp/objects/Object.h"
#include "vtui/comp/objects/Output_number_obj.h"
#include "vtui/comp/objects/Output_string_obj.h"

#include <cstdint>
#include <optional>

namespace VT {
class vtui_pool;
}

namespace VT::Comp {

/// Shows a number with its units, in the system of units that is chosen for its quantity, and lets the operator enter
/// one. The application gives style and limits, calls init(), sizes the field and places root() in a mask; the pool
/// routes events to it (Pool::route).
///
/// Three kinds of number meet here. The application has engineering units: those of its store. The display has display
/// units: engineering units times the factor of the units manager. The terminal has raw units: display units are
/// (raw + offset) × scale. Of a number that the operator enters, a class that derives from this one hears by
/// handle_input_value().
class VTUI_EXPORT Number_widget : public Widget
{
  public:
    /// How number and units share the field.
    enum Layout : std::uint32_t {
        right_aligned, ///< at the right edge, the units behind the number
        centred_pair,  ///< in the middle, the units behind the number
        left_aligned,  ///< at the left edge, the units behind the number
        stacked,       ///< in the middle, the number above the units; so is any larger value
    };

    /// What a field looks like. What it points to stays the application's and outlives the field.
    struct Style
    {
        Font_attributes_obj* number_font{nullptr}; ///< its size gives the number's; null: 0 × 0
        Font_attributes_obj* units_font{nullptr};  ///< its size gives the units'; null: 0 × 0
        VT::VT_obj* backdrop{nullptr};             ///< drawn under number and units; a field that is laid out needs one
        std::uint32_t layout{right_aligned};
        bool input{false}; ///< the operator may enter a number
    };

    /// The number in one system of units. Its limits act twice: the terminal holds an entry within them in display
    /// units; set_value(), and with it a switch to this system, holds the value itself within the same numbers in
    /// engineering units. Where the system has a factor other than 1, choose them wide enough for both and check what
    /// was entered.
    struct Specification
    {
        Units_man::units_type units_type{Units_man::none};
        double min{0};            ///< lowest value, display units: a whole number of steps, within 32 bits of them
        double max{0};            ///< highest value, display units; both 0: as far as 32 raw bits reach
        double scale{1};          ///< display units per raw unit, one step; above 0
        std::uint8_t decimals{0}; ///< shown ones, 0 to 7
    };

    // The last argument of each is the units text for all systems; null: that of the units manager.

    /// A specification for each of the systems 0, 1 and 2.
    Number_widget(const Style& style, const Specification& s0, const Specification& s1, const Specification& s2,
                  VT::String_variable_obj* units_text);
    /// `s1` for both systems 1 and 2.
    Number_widget(const Style& style, const Specification& s0, const Specification& s1,
                  VT::String_variable_obj* units_text);
    Number_widget(const Style& style, const Specification& all, VT::String_variable_obj* units_text);
    Number_widget(const Style& style, VT::String_variable_obj* units_text);

    /// What all constructors end with. Mind the order: the text stands before the last specification.
    void construct(const Style& style, const Specification& s0, const Specification& s1,
                   VT::String_variable_obj* units_text, const Specification& s2);

    /// Completes the units texts and shows system 0; where other systems have been announced, announce them again. A
    /// text given here replaces those of the constructor. Texts of the units manager are the pool's: it outlives the
    /// field's use.
    void init(VT::vtui_pool* pool, VT::String_variable_obj* units_text);

    // Pixels, in the system shown. The number's width is an estimate from its limits: a character generous at times,
    // and without their digits where both lie beyond 32 bits.
    Dimension get_preferred_units_size() const;
    Dimension get_preferred_number_size() const;
    Dimension get_preferred_size() const;

    /// Makes the field `size` pixels large and lays number and units out in a box inside it, of `new_layout_size` at
    /// `origin`. What does not fit overhangs. Sends nothing: in a live pool follow with root().upload(true). Ends the
    /// process if there is no backdrop.
    void set_size(Dimension size, Dimension new_layout_size, Point origin);
    void set_size(Dimension size) { set_size(size, size, {0, 0}); }
    /// Places number and units without sizing them.
    void set_layout(Dimension box, Point origin);

    /// Shows the value in another system of units, with its decimals and limits, and holds it within them as
    /// set_value() does: what that cuts off is lost. Units texts of the units manager follow Pool::announce() only.
    /// Lays nothing out: follow with set_size(). If the pool is live, each attribute that changes is sent, then the
    /// value. Ends the process if the system's max is not above its min, or if its limits are more than 4294967295
    /// steps apart (not counted from 2^31 display units on).
    void set_system(Units_man::units_systems new_system);

    /// Shows `v`, engineering units. It is held within min and max as they are, although those are display units. If
    /// the pool is live, the output number is sent and, if the field is an input, the input number.
    void set_value(double v);
    /// Engineering units.
    double get_value() const { return value; }
    /// Steps the value, engineering units, as far as min and max allow, and reports it to handle_input_value().
    void increment(double step);
    void decrement(double step) { increment(-step); }

    /// Takes a raw value that was entered at the terminal, which has checked it; it is not held within min and max. If
    /// the pool is live, the output number is sent.
    void handle_input(unsigned int raw);

    using Handled_events = Event_list<VT_change_numeric_value_event, const VT_information, Units_man>;

    /// A number was entered somewhere.
    void handle_event(VT_change_numeric_value_event& event);
    /// Without a touch screen (and with other than a maker's graphics of kind 9) the operator has to see the input
    /// number itself: it takes the place of the output number. To be followed by set_size(); not undone by another
    /// terminal.
    void handle_event(const VT_information& terminal);
    /// Units may have changed: shows the system chosen for the quantity, lays out again as set_size() did last, and
    /// uploads.
    void handle_event(Units_man& units_man);

    bool is_input(unsigned short id) const { return id != VT::VT_obj::NULL_ID && id == input_number.get_id(); }

    Container_obj& root() { return container; }

    /// The operator, or increment() or decrement(), gave the value: engineering units.
    virtual void handle_input_value(double v);
    virtual ~Number_widget();

    Output_string_obj units;
    VT::String_variable_obj* units_variable{nullptr}; ///< the text that `units` shows
    Font_attributes_obj* units_font{nullptr};
    Input_number_obj input_number;
    Font_attributes_obj* input_font{nullptr};
    Container_obj container;
    Child_placements_array<Array_array_4> placements;
    Output_number_obj output_number;
    Font_attributes_obj* output_font{nullptr};
    Specification specifications[Units_man::number_of_systems]; ///< set_system() writes limits into unbounded ones
    VT::String_variable_obj* units_variables[Units_man::number_of_systems];
    Units_man::units_systems system{};
    std::uint32_t layout{};
    double value{0}; ///< engineering units
    Dimension layout_size;
    Point layout_origin;

  protected:
    /// True if the field would show `v`, engineering units, as it shows its present value: both are the same number of
    /// steps. Limits do not count.
    bool looks_like(double v) const { return to_steps(v) == to_steps(value); }
    /// What handle_event() does. If the field's value is what limits have left of `stored`, engineering units, the
    /// other system starts from that again.
    void switch_units(Units_man& units_man, std::optional<double> stored = {});

  private:
    bool is_child(const VT::VT_obj& number);
    void show_units();
    double held(double v) const;
    double to_steps(double v) const;
};

} // namespace VT::Comp

#endif
