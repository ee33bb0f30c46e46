#include "pool/Pool.h"

#include "iso11783/Function.h"
#include "pool/Colours.h"
#include "pool/Dialogue.h"
#include "pool/Kind.h"
#include "pool/Names.h"
#include "pool/Operator_change.h"
#include "pool/Preparation.h"
#include "pool/Record_writer.h"
#include "pool/Scaling.h"
#include "units/Units_man.h"
#include "vt/Output_string_obj.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <type_traits>
#include <utility>

namespace VT {

namespace {

/// Lets a result collect what objects report, for as long as this lives.
class Listening
{
  public:
    Listening(Result*& place, Result& result) : listener(place) { listener = &result; }
    ~Listening() { listener = nullptr; }
    Listening(const Listening&) = delete;
    Listening& operator=(const Listening&) = delete;

  private:
    Result*& listener;
};

/// How many bytes of records a message of the link has room for.
std::size_t room_in(const Client::Terminal_link& link) { return std::max(link.longest_message(), Iso::frame_size) - 1; }

Problem too_long(const VT_obj& object, std::size_t size, std::size_t room)
{
    return {Error::too_long_record, object.get_id(), name_of(object),
            describe(object) + " has a record of " + std::to_string(size) +
                " bytes; the link's longest message has room for " + std::to_string(room)};
}

} // namespace

Pool::Pool() : kinds(std::make_unique<Kinds>()) {}

Pool::~Pool()
{
    // Another pool must not find this one's ids: not in links that have been cleared since, nor in lists.
    for (std::size_t place = 0; place < objects.size(); ++place) {
        if (!objects[place])
            continue;
        VT_obj& object = *objects[place];
        const Kind& kind = kinds->of(object);
        for_each_link(kind, object, [this](const VT_obj*, Attribute_object_id_spec& attribute) {
            if (objects.is_taken(attribute))
                attribute = Iso::null_id;
        });
        clear_lists(kind, object);
    }
    for (std::size_t place = 0; place < objects.size(); ++place)
        if (objects[place])
            objects[place]->set_pool(nullptr, Iso::null_id);
}

void Pool::add(VT_obj& object) { added.push_back(&object); }

void Pool::specify(const std::string& object, const std::string& attribute, double number)
{
    specification.set(object, attribute, number);
}

void Pool::specify(const std::string& object, const std::string& attribute, const std::string& text)
{
    specification.set(object, attribute, text);
}

void Pool::unspecify(const std::string& object, const std::string& attribute)
{
    specification.remove(object, attribute);
}

void Pool::set_colour_resolver(Colour_resolver resolver) { colour_resolver = resolver; }

void Pool::set_designed_size(std::uint16_t pixels) { designed_size = pixels; }

Result Pool::prepare()
{
    Result result;
    const Listening listening(preparing, result);
    std::vector<Problem>& errors = result.errors;
    Preparation run(*this, objects, *kinds, errors);

    run.collect(added);
    if (errors.empty())
        run.number();
    if (errors.empty()) {
        run.write_references();
        resolve_colours(colour_resolver, *this, Unknown_colours::wait, errors);
    }
    if (errors.empty()) {
        run.specify(specification, being_specified);
        // Specified names are set again by the next attempt; they must not outlive the specification in the queue.
        resolve_colours(colour_resolver, *this, Unknown_colours::are_dropped, errors);
        specification.report_unused(errors);
    }
    if (errors.empty())
        scale_new(run, result);

    if (!errors.empty()) {
        run.cancel();
        return result;
    }
    added.clear();
    if (run.found_any()) {
        live = false;
        routes.rebuild(objects);
    }
    return result;
}

void Pool::scale_new(const Preparation& run, Result& result)
{
    if (designed_size == 0 || !terminal_information)
        return;
    const std::uint16_t width = terminal_information->mask_width;
    const std::uint16_t height = terminal_information->mask_height;
    const bool first_time = scaled == 0;
    if (first_time) {
        scaled_width = width;
        scaled_height = height;
    } else if (width != scaled_width || height != scaled_height) {
        result.warnings.push_back({Error::other_mask_size, Iso::null_id, "",
                                   "The pool was scaled to a data mask of " + in_pixels(scaled_width, scaled_height) +
                                       " pixels and stays so; the terminal's has " + in_pixels(width, height)});
    }
    const Scale by{scaled_width, scaled_height, designed_size};
    scale(objects, scaled, by, result.errors);
    if (!result.errors.empty())
        return;
    if (!first_time)
        for (const Preparation::Late_children& children : run.late_children())
            scale(children.first, children.count, by);
    scaled = objects.size();
}

Result Pool::serialise(std::vector<std::uint8_t>& records)
{
    Result result = prepare();
    records.clear();
    if (!result)
        return result;
    Record_writer writer(records, Record_writer::Reader::file);
    for (std::size_t place = 0; place < objects.size(); ++place)
        if (objects[place])
            writer.write(*objects[place]);
    return result;
}

Result Pool::ask_hardware(Client::Terminal_link& terminal, std::chrono::milliseconds timeout)
{
    live = false; // the terminal forgets the pool
    Result result;
    Dialogue dialogue(terminal, result.errors);
    if (ask(dialogue, timeout))
        routes.deliver_to_all(&*terminal_information);
    return result;
}

bool Pool::ask(Dialogue& dialogue, std::chrono::milliseconds timeout)
{
    VT_information answer{};
    if (!dialogue.begin() || !dialogue.ask_hardware(answer, timeout))
        return false;
    terminal_information = answer;
    return true;
}

Result Pool::load(Client::Terminal_link& terminal, const Progress& progress, const Timeouts& timeouts)
{
    disconnect();
    Result result;
    Dialogue dialogue(terminal, result.errors);
    // Components are laid out already: what they would change on the answer comes too late.
    if (!ask(dialogue, timeouts.answer))
        return result;
    result = prepare();
    if (!result)
        return result;
    Records records = write_records(room_in(terminal), result.errors);
    if (!result)
        return result;
    looked_at.reserve(objects.ids());

    End_of_object_pool_response response{};
    if (!dialogue.ask_memory(records.bytes.size() - 1, timeouts.answer) || !dialogue.transfer(records, progress) ||
        !dialogue.end(response, timeouts.acceptance))
        return result;
    if (!response.accepted) {
        result.errors.push_back(rejection(response));
        return result;
    }
    link = &terminal;
    live = true;
    // What has been changed since the records were written, from within `progress`.
    for (std::size_t place = 0; place < objects.size() && live; ++place)
        if (objects[place])
            objects[place]->upload(false);
    return result;
}

/// As many records as fit in each message, in the order of their places.
Records Pool::write_records(std::size_t room, std::vector<Problem>& errors)
{
    Records records;
    Record_writer writer(records.bytes, Record_writer::Reader::terminal);
    std::size_t largest = 0;
    std::size_t begin = 0; // of the present message
    std::size_t end = 0;
    for (std::size_t place = 0; place < objects.size(); ++place) {
        if (!objects[place])
            continue;
        const std::size_t size = writer.write(*objects[place]);
        if (size > room)
            errors.push_back(too_long(*objects[place], size, room));
        if (end + size - begin > room) {
            records.ends.push_back(end);
            begin = end;
        }
        end += size;
        largest = std::max(largest, size);
    }
    records.ends.push_back(end);
    message.reserve(largest + Iso::frame_size);
    return records;
}

bool Pool::maintain()
{
    if (!link)
        return false;
    if (send_maintenance(*link, false))
        return true;
    lose_link(name_of(Iso::Function::working_set_maintenance));
    return false;
}

Terminal_message Pool::receive(const std::uint8_t* received, std::size_t size)
{
    Terminal_message decoded = decode(received, size);
    take_note(decoded);
    if (!routes.are_current())
        routes.rebuild(objects);
    std::visit(
        [this](auto& received_event) {
            if constexpr (std::is_same_v<decltype(received_event), VT_information&>)
                routes.deliver_to_all(&received_event);
            else if constexpr (std::is_constructible_v<Event, decltype(&received_event)>)
                if (find_object(received_event.object_id)) // what was destroyed took its component with it
                    routes.deliver(received_event.object_id, &received_event);
        },
        decoded);
    return decoded;
}

void Pool::take_note(const Terminal_message& received)
{
    if (const auto* const entered = std::get_if<VT_change_numeric_value_event>(&received)) {
        note_change(objects, *entered);
    } else if (const auto* const text = std::get_if<VT_change_string_value_event>(&received)) {
        note_change(objects, *text);
    } else if (const auto* const activation = std::get_if<Button_activation_event>(&received)) {
        note_change(objects, *activation);
    } else if (const auto* const information = std::get_if<VT_information>(&received)) {
        if (information->has_pixels())
            terminal_information = *information;
    } else if (const auto* const response = std::get_if<Command_response>(&received)) {
        if (response->error)
            note(problem(Error::rejected_command, response->object_id,
                         "The terminal refused " + name_of(response->function) + " of " + mention(response->object_id) +
                             " with error bits " + std::to_string(response->error)));
    } else if (const auto* const unknown = std::get_if<Unsupported_function_response>(&received)) {
        note({Error::rejected_command, Iso::null_id, "", "The terminal does not know " + name_of(unknown->function)});
    } else if (const auto* const judgement = std::get_if<End_of_object_pool_response>(&received)) {
        if (!judgement->accepted)
            note(rejection(*judgement));
    }
}

void Pool::announce(Units_man& units)
{
    units.write_texts(*this);
    routes.deliver_to_all(&units);
}

std::vector<Problem> Pool::take_problems() { return std::exchange(problems, {}); }

void Pool::disconnect()
{
    live = false;
    link = nullptr;
}

void Pool::send(const std::uint8_t* head, std::size_t head_size, const void* tail, std::size_t tail_size)
{
    message.clear();
    Iso::Byte_writer out(message);
    out.bytes(head, head_size);
    out.bytes(tail, tail_size);
    if (message.size() < Iso::frame_size)
        out.fill(Iso::frame_size - message.size(), 0xFF);
    if (!link->send(message.data(), message.size()))
        lose_link(name_of(static_cast<Iso::Function>(*head)));
}

void Pool::upload(VT_obj& object)
{
    looked_at.assign(objects.ids(), false);
    if (send_changes_below(object) && send_record(object) && !send_frame(*link, Iso::Function::end_of_object_pool))
        lose_link("the record of " + describe(object));
}

/// Everything at once: the terminal must not show a number in its new place with its old units. It goes as deep as the
/// screen nests, which the terminal has accepted.
bool Pool::send_changes_below(VT_obj& object)
{
    looked_at[object.get_id()] = true;
    bool sent = true;
    for_each_reachable(kinds->of(object), object, [&](VT_obj* shown) {
        if (!sent || !shown || objects.find(shown->get_id()) != shown || looked_at[shown->get_id()])
            return;
        sent = send_changes_below(*shown) && (!shown->is_changed() || send_record(*shown));
    });
    return sent;
}

bool Pool::send_record(VT_obj& object)
{
    message.assign(1, static_cast<std::uint8_t>(Iso::Function::object_pool_transfer));
    const std::size_t size = Record_writer(message, Record_writer::Reader::terminal).write(object);
    const std::size_t room = room_in(*link);
    if (size > room) {
        disconnect();
        note(too_long(object, size, room));
        return false;
    }
    if (link->send(message.data(), message.size()))
        return true;
    lose_link("the record of " + describe(object));
    return false;
}

void Pool::set_string(Output_string_obj& object, const char* text)
{
    const std::size_t size = object.value.item_count;
    auto buffer = std::make_unique<char[]>(size);
    const std::size_t copied = std::min(std::strlen(text), size);
    std::fill(std::copy_n(text, copied, buffer.get()), buffer.get() + size, ' ');
    object.hold(std::move(buffer));
}

void Pool::report(const Iso::Iso_object_base& object, const char* attribute, const char* what)
{
    const bool specified = being_specified && being_specified->find(attribute);
    Problem problem{specified ? Error::refused_value : Error::suspicious_value, object.get_id(), name_of(object),
                    describe(object) + ": " + attribute + ' ' + what};
    if (preparing)
        (specified ? preparing->errors : preparing->warnings).push_back(std::move(problem));
    else
        note(std::move(problem));
}

void Pool::forget(const VT_obj& object)
{
    if (objects.find(object.get_id()) == &object)
        objects.remove(object.get_id());
}

String_variable_obj* Pool::find_text(const char* name)
{
    const auto found = std::find_if(texts.begin(), texts.end(), [name](const Text& text) {
        return std::strcmp(text.object.get_name(), name) == 0;
    });
    return found != texts.end() ? &found->object : nullptr;
}

String_variable_obj& Pool::make_text(const char* name, std::uint16_t length)
{
    return texts.emplace_back(name, length).object;
}

/// A controller runs for years: nothing may pile up.
void Pool::note(Problem&& problem)
{
    if (problems.size() < most_problems)
        problems.push_back(std::move(problem));
}

std::string Pool::mention(Iso::Object_id id) const
{
    const VT_obj* const object = find_object(id);
    return object ? describe(*object) : "object " + std::to_string(id) + " (not in the pool)";
}

Problem Pool::problem(Error error, Iso::Object_id id, const std::string& text) const
{
    const VT_obj* const object = find_object(id);
    return {error, id, object ? name_of(*object) : "", text};
}

Problem Pool::rejection(const End_of_object_pool_response& response) const
{
    std::string text = "The terminal rejected the pool with error code " + std::to_string(response.error);
    if (response.faulty_object != Iso::null_id)
        text += ": " + mention(response.faulty_object);
    if (response.faulty_parent != Iso::null_id)
        text += " in " + mention(response.faulty_parent);
    return problem(Error::rejected_pool, response.faulty_object, text);
}

void Pool::lose_link(const std::string& refused)
{
    disconnect();
    note({Error::link_refused, Iso::null_id, "", "The link refused " + refused});
}

} // namespace VT
