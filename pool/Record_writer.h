#ifndef POOL_RECORD_WRITER_H
#define POOL_RECORD_WRITER_H

#include "iso11783/Bytes.h"
#include "vt/VT_obj.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace VT {

/// Writes objects as the terminal reads them.
class Record_writer final : public Attribute_visitor
{
  public:
    /// Whom the records are for: what has been written for the terminal counts as told.
    enum class Reader { terminal, file };

    /// Records are appended to `records`.
    Record_writer(std::vector<std::uint8_t>& records, Reader whom) : out(records), reader(whom) {}

    /// Returns the size of the record.
    std::size_t write(VT_obj& object);

  private:
    void attribute(const Attribute_info&, Attribute_uint8& a) override { out.u8(told(a)); }
    void attribute(const Attribute_info&, Attribute_uint16& a) override { out.u16(told(a)); }
    void attribute(const Attribute_info&, Attribute_int16& a) override { out.s16(told(a)); }
    void attribute(const Attribute_info&, Attribute_uint32& a) override { out.u32(told(a)); }
    void attribute(const Attribute_info&, Attribute_int32& a) override { out.s32(told(a)); }
    void attribute(const Attribute_info&, Attribute_real& a) override { out.f32(told(a)); }
    void attribute(const Attribute_info&, Attribute_object_id_spec& a) override { out.u16(told(a)); }
    void attribute(const Attribute_info&, Attribute_colour& a) override { out.u8(told(a)); }
    void attribute(const Attribute_info&, Attribute_string& a) override;

    void count(std::uint8_t entries) override { out.u8(entries); }
    void count(std::uint32_t bytes) override { out.u32(bytes); }
    void objects(Attribute_object_placement* list, std::size_t count) override;
    void keys(Attribute_object_placement* list, std::size_t count) override;
    void points(Attribute_point* list, std::size_t count) override;
    void macros(const Macro_reference* list, std::size_t count) override;
    void raw(const void* data, std::size_t count) override { out.bytes(data, count); }

    template <class A>
    A& told(A& attribute) const
    {
        if (reader == Reader::terminal)
            attribute.set_told();
        return attribute;
    }

    Iso::Byte_writer out;
    Reader reader;
};

} // namespace VT

#endif
