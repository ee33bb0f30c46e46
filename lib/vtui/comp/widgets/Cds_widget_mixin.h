#ifndef VTUI_COMP_CDS_WIDGET_MIXIN_H
#define VTUI_COMP_CDS_WIDGET_MIXIN_H

#include "cds/Access.h"
#include "util/Bugger.h"

namespace VT::Comp {

/// Binds a component to a variable of the central data store: class W derives from Cds_widget_mixin<T, W>, writes with
/// write() what its operator does, and shows in handle_cds_value(T) what the store holds. The lock of the store is held
/// for the variable alone, never while W shows it. Store and variable outlive the component.
template <class T, class W>
class VTUI_EXPORT Cds_widget_mixin : public CDS::Access<T, CDS::Virt_access>
{
  public:
    using CDS::Access<T, CDS::Virt_access>::Access;

    /// Shows what the store holds. Ends the process if there is no store any more; so does write().
    void handle_change() override { static_cast<W*>(this)->handle_cds_value(read()); }

    T read()
    {
        check();
        return CDS::read(*this->access.head(), *this->variable);
    }

    /// Other accesses to the variable hear of it, and so does this one, unless W shows that very value already. Not
    /// with the lock held.
    void write(T value, bool is_shown = false)
    {
        check();
        CDS::Head& head = *this->access.head();
        head.hold();
        head.event_signal(this->variable, &value, this->access.offset(), this->access.extent(), nullptr);
        *this->variable = value;
        if (is_shown)
            this->access.settle();
        head.release();
    }

    /// False when there is no store any more.
    bool is_bound() const { return this->variable && this->access.head(); }

  private:
    void check() const
    {
        if (!is_bound())
            Bugger::report_bug("CDS: Tried to set with no init");
    }
};

} // namespace VT::Comp

#endif
