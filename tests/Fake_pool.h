#ifndef TESTS_FAKE_POOL_H
#define TESTS_FAKE_POOL_H

#include "vt/Output_string_obj.h"
#include "vt/String_variable_obj.h"
#include "vt/vtui_pool.h"

#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// What a test specifies for one object.
class Fake_specification final : public VT::Client::Object_specification_interface
{
  public:
    using Value = VT::Client::Specified_value;

    Fake_specification() = default;
    Fake_specification(std::initializer_list<std::pair<const std::string, Value>> given) : values(given) {}

    const Value* find(const char* attribute) const override
    {
        const auto found = values.find(attribute);
        return found == values.end() ? nullptr : &found->second;
    }

  private:
    std::map<std::string, Value> values;
};

/// A pool without a terminal: it gives the ids that a test asks for and writes down what its objects want of it. A test
/// switches it live.
class Fake_pool : public VT::vtui_pool
{
  public:
    using Message = std::vector<std::uint8_t>;

    Fake_pool() = default;
    Fake_pool(const Fake_pool&) = delete;
    Fake_pool& operator=(const Fake_pool&) = delete;
    ~Fake_pool() override
    {
        for (const auto& [id, object] : objects)
            object->set_pool(nullptr, VT::VT_obj::NULL_ID);
    }

    /// Takes an object in under an id.
    void take(VT::VT_obj& object, Iso::Object_id id)
    {
        objects[id] = &object;
        object.set_pool(this, id);
    }

    /// Lets an object of this pool go.
    void release(VT::VT_obj& object)
    {
        forget(object);
        object.set_pool(nullptr, VT::VT_obj::NULL_ID);
    }

    /// Applies a specification to an object of this pool, as a pool does it: with the object's lock held.
    static bool specify(VT::VT_obj& object, const Fake_specification& specification = {})
    {
        object.lock();
        const bool done = object.__set_by_spec(specification);
        object.unlock();
        return done;
    }

    bool live{false};
    std::vector<Message> sent;
    std::vector<VT::VT_obj*> uploaded;
    std::vector<std::string> reported; ///< "id attribute what"
    std::vector<const VT::VT_obj*> forgotten;
    std::vector<VT::VT_obj*> added;
    std::vector<std::string> strings; ///< "id text"

    VT::VT_obj* find_object(Iso::Object_id id) const override
    {
        const auto found = objects.find(id);
        return found == objects.end() ? nullptr : found->second;
    }

    bool is_live() const override { return live; }

    void send(const std::uint8_t* head, std::size_t head_size, const void* tail, std::size_t tail_size) override
    {
        Message message(head, head + head_size);
        const auto* const bytes = static_cast<const std::uint8_t*>(tail);
        message.insert(message.end(), bytes, bytes + tail_size);
        if (message.size() < 8)
            message.resize(8, 0xFF);
        sent.push_back(std::move(message));
    }

    void upload(VT::VT_obj& object) override
    {
        uploaded.push_back(&object);
        Told told;
        object.visit(told);
    }

    void set_string(VT::Output_string_obj& object, const char* text) override
    {
        strings.push_back(std::to_string(object.get_id()) + " " + text);
        const std::size_t capacity = object.value.item_count;
        auto buffer = std::make_unique<char[]>(capacity);
        std::string filled(text);
        filled.resize(capacity, ' ');
        filled.copy(buffer.get(), capacity);
        object.hold(std::move(buffer));
    }

    void report(const Iso::Iso_object_base& object, const char* attribute, const char* what) override
    {
        reported.push_back(std::to_string(object.get_id()) + " " + attribute + " " + what);
    }

    void forget(const VT::VT_obj& object) override
    {
        forgotten.push_back(&object);
        const auto found = objects.find(object.get_id());
        if (found != objects.end() && found->second == &object)
            objects.erase(found);
    }

    void add(VT::VT_obj& object) override { added.push_back(&object); }

    VT::String_variable_obj* find_text(const char* name) override
    {
        const auto found = texts.find(name);
        return found == texts.end() ? nullptr : &found->second.object;
    }

    VT::String_variable_obj& make_text(const char* name, std::uint16_t length) override
    {
        return texts.try_emplace(name, name, length).first->second.object;
    }

    struct Text
    {
        Text(const char* name, std::uint16_t length)
            : buffer(length, ' '), object(VT::VT_obj::NULL_ID, name, length, buffer.data())
        {}

        std::string buffer;
        VT::String_variable_obj object;
    };
    std::map<std::string, Text> texts; ///< by name

  private:
    /// The terminal has been told all of a record.
    class Told final : public VT::Attribute_visitor
    {
      public:
        void attribute(const VT::Attribute_info&, VT::Attribute_uint8& a) override { a.set_told(); }
        void attribute(const VT::Attribute_info&, VT::Attribute_uint16& a) override { a.set_told(); }
        void attribute(const VT::Attribute_info&, VT::Attribute_int16& a) override { a.set_told(); }
        void attribute(const VT::Attribute_info&, VT::Attribute_uint32& a) override { a.set_told(); }
        void attribute(const VT::Attribute_info&, VT::Attribute_int32& a) override { a.set_told(); }
        void attribute(const VT::Attribute_info&, VT::Attribute_real& a) override { a.set_told(); }
        void attribute(const VT::Attribute_info&, VT::Attribute_object_id_spec& a) override { a.set_told(); }
        void attribute(const VT::Attribute_info&, VT::Attribute_colour& a) override { a.set_told(); }
        void attribute(const VT::Attribute_info&, VT::Attribute_string& a) override { a.set_told(); }
        void objects(VT::Attribute_object_placement* list, std::size_t count) override { placements(list, count); }
        void keys(VT::Attribute_object_placement* list, std::size_t count) override { placements(list, count); }
        void points(VT::Attribute_point* list, std::size_t count) override
        {
            for (std::size_t i = 0; i < count; ++i) {
                list[i].x.set_told();
                list[i].y.set_told();
            }
        }

      private:
        static void placements(VT::Attribute_object_placement* list, std::size_t count)
        {
            for (std::size_t i = 0; i < count; ++i) {
                list[i].object_id.set_told();
                list[i].x.set_told();
                list[i].y.set_told();
            }
        }
    };

    std::map<Iso::Object_id, VT::VT_obj*> objects;
};

/// The messages a pool has sent, to compare with.
using Messages = std::vector<Fake_pool::Message>;

#endif
