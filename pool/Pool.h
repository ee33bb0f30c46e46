#ifndef POOL_POOL_H
#define POOL_POOL_H

#include "pool/Object_table.h"
#include "pool/Result.h"
#include "pool/Routes.h"
#include "pool/Specification.h"
#include "pool/Terminal_message.h"
#include "vt/Resolve_colour.h"
#include "vt/String_variable_obj.h"
#include "vt/Terminal_link.h"
#include "vt/VT_obj.h"
#include "vt/vtui_pool.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace VT {

class Dialogue;
class Kinds;
class Preparation;
struct Records;

/// How much of the pool the link has taken, of how many bytes: told after each message, of which one may hold all.
using Progress = std::function<void(std::size_t sent, std::size_t total)>;

/// How long the terminal may take for an answer.
struct Timeouts
{
    std::chrono::milliseconds answer{3000};      ///< to a question about itself
    std::chrono::milliseconds acceptance{30000}; ///< to look through the whole pool, from when the link has taken it
};

/// The pool of one working set: collects the application's objects, gives them their ids, loads them into a terminal
/// and keeps the terminal up to date.
///
///     VT::Pool pool;
///     pool.add(working_set);
///     pool.add(crumb.root()); // nothing shows it yet
///     if (const VT::Result result = pool.load(link); !result)
///         std::cerr << result.text();
///
/// The objects stay the application's. Each belongs to one pool from prepare() until it or the pool is destroyed. What
/// is destroyed first must not be shown or referred to by anything that stays; its id is not used again. Objects that
/// were added live until prepare() has taken them in. All pools of a process belong to one thread: they share the queue
/// of symbolic colours.
class VTUI_EXPORT Pool final : public vtui_pool
{
  public:
    using Colour_resolver = unsigned char (*)(Resolve_colour::Attribute_node&);

    Pool();
    /// Lets every object go: its pool is null, its id the null id.
    ~Pool() override;
    Pool(const Pool&) = delete;
    Pool& operator=(const Pool&) = delete;

    /// Takes in `object` and everything that it can show, with the next prepare(). One working set must be among the
    /// objects added.
    void add(VT_obj& object) override;

    /// Gives an attribute of every object of that name a value before it is loaded: a number, or a text (a string's
    /// value, the name of a colour). Attributes have the names that their objects show to a visitor.
    void specify(const std::string& object, const std::string& attribute, double number);
    void specify(const std::string& object, const std::string& attribute, const std::string& text);
    /// Takes back what was specified, for instance by mistake.
    void unspecify(const std::string& object, const std::string& attribute);

    /// Who knows the palette index of a symbolic colour. Null, as at first: the standard's sixteen colours by their
    /// names, any other name is an error.
    void set_colour_resolver(Colour_resolver resolver);

    /// The side of the data mask, pixels, for which the objects are laid out. They are scaled once, when the terminal's
    /// mask is known. 0, as at first: never scaled.
    void set_designed_size(std::uint16_t pixels);

    /// Collects what can be reached, gives ids, writes links, placements, colours and specified values into the objects
    /// and scales them if the terminal's mask is known. May be called again: objects that have been prepared keep id
    /// and values, new ones are taken in after them. When there are new ones the pool is no longer live.
    /// After an error nothing has been taken in; mend the cause and call again. Values that were specified may stand in
    /// their objects already.
    Result prepare();

    /// Gives `component` the events that it has a handle_event() for: those that name a control inside it (an object in
    /// its memory; of components inside each other the innermost that handles such events), announced units, and what
    /// ask_hardware() hears. Also those of `control`, which it keeps elsewhere; of many, as in a vector, it tells by an
    /// outlying_controls() (see Routes). The component stays the application's;
    /// no event is delivered to it after unroute(), which comes before it is destroyed if events may come later.
    ///
    /// The next message after that makes the table of routes anew, as prepare() does: it allocates and takes about as
    /// long as sorting all controls and components.
    template <class Component>
    void route(Component& component)
    {
        routes.add(component);
    }
    template <class Component>
    void route(Component& component, const VT_obj& control)
    {
        routes.add(component, control);
    }
    /// False if it is not routed, as a component of this very type.
    template <class Component>
    bool unroute(Component& component)
    {
        return routes.remove(component);
    }

    /// Systems of units have been chosen: brings the units texts up to date, then all routed components. What one of
    /// them throws comes out here, and the rest have to be told by announcing again.
    void announce(Units_man& units);

    /// How many ids are given; one of an object that was destroyed counts.
    std::size_t size() const { return objects.size(); }

    /// The records of all objects, prepared as by prepare(): what an .iop file contains. Replaces the contents of
    /// `records`. Nothing counts as told to the terminal.
    Result serialise(std::vector<std::uint8_t>& records);

    /// Asks a terminal about itself, for laying out the screens before the pool is prepared. Routed components hear the
    /// answer and are to be laid out after it. The terminal forgets what it knew of this working set.
    Result ask_hardware(Client::Terminal_link& terminal, std::chrono::milliseconds timeout = Timeouts().answer);
    /// What the terminal said last about itself.
    const std::optional<VT_information>& information() const { return terminal_information; }

    /// Prepares as prepare() does and loads all objects with their present values into the terminal. The pool is live
    /// when the terminal has accepted it, and uses `terminal` from then on. Also for loading once more when a link came
    /// back, or when there are new objects.
    Result load(Client::Terminal_link& terminal, const Progress& progress = {}, const Timeouts& timeouts = {});

    /// Tells the terminal that the application is alive; to be called once a second from load() on. False when the link
    /// refuses it.
    bool maintain();

    /// Takes a message that the terminal sent while the pool is live, gives it to the component that it concerns, and
    /// says what it is. Before that it notes in the objects what the operator changed: numbers, texts, latched
    /// buttons. Refused commands and records are noted among the problems. What a component throws comes out here.
    Terminal_message receive(const std::uint8_t* message, std::size_t size);

    /// What went wrong since the last call, oldest first: commands and records that the terminal refused, a link that
    /// was lost. Of an application that does not ask, the first `most_problems` are kept and the later ones dropped.
    std::vector<Problem> take_problems();
    static constexpr std::size_t most_problems = 64;

    /// The link is gone: changes are noted in the objects only, until the next load(). Also happens when the link
    /// refuses a message, or when a record fits none of its messages any more.
    void disconnect();

    // What the objects see of their pool.

    VT_obj* find_object(Iso::Object_id id) const override { return objects.find(id); }
    bool is_live() const override { return live; }
    void send(const std::uint8_t* head, std::size_t head_size, const void* tail, std::size_t tail_size) override;
    void upload(VT_obj& object) override;
    void set_string(Output_string_obj& object, const char* text) override;
    void report(const Iso::Iso_object_base& object, const char* attribute, const char* what) override;
    void forget(const VT_obj& object) override;
    String_variable_obj* find_text(const char* name) override;
    String_variable_obj& make_text(const char* name, std::uint16_t length) override;

  private:
    /// A text that the pool owns.
    struct Text
    {
        Text(const char* name, std::uint16_t length)
            : buffer(length, ' '), object(Iso::null_id, name, length, buffer.data())
        {}

        std::string buffer;
        String_variable_obj object;
    };

    bool ask(Dialogue& dialogue, std::chrono::milliseconds timeout);
    void take_note(const Terminal_message& received);
    bool send_record(VT_obj& object);
    bool send_changes_below(VT_obj& object);
    void scale_new(const Preparation& run, Result& result);
    Records write_records(std::size_t room, std::vector<Problem>& errors);
    void note(Problem&& problem);
    std::string mention(Iso::Object_id id) const;
    Problem problem(Error error, Iso::Object_id id, const std::string& text) const;
    Problem rejection(const End_of_object_pool_response& response) const;
    void lose_link(const std::string& refused);

    std::deque<Text> texts;
    std::vector<VT_obj*> added; ///< since the last prepare()
    Object_table objects;
    std::unique_ptr<Kinds> kinds;
    Routes routes;
    std::size_t scaled{0}; ///< places before this one are laid out for a mask of the size below
    std::uint16_t scaled_width{0};
    std::uint16_t scaled_height{0};

    Specification specification;
    const Object_specification* being_specified{nullptr};
    Colour_resolver colour_resolver{nullptr};
    std::uint16_t designed_size{0};
    Result* preparing{nullptr}; ///< gets what objects report while values are specified
    std::vector<Problem> problems;

    std::optional<VT_information> terminal_information;
    Client::Terminal_link* link{nullptr}; ///< not owned
    bool live{false};
    std::vector<std::uint8_t> message; ///< has room for every message of a live pool
    std::vector<bool> looked_at;       ///< by object id, while records are uploaded
};

} // namespace VT

#endif
