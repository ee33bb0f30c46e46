#ifndef VT_RESOLVE_COLOUR_H
#define VT_RESOLVE_COLOUR_H

#include "iso11783/Export.h"

#include <cstdint>
#include <iosfwd>

namespace VT {

class VT_obj;

/// Colours that are known by a name only, until the pool asks for their palette index.
namespace Resolve_colour {

template <class N>
class List;

/// A link of an intrusive queue. The link word follows the virtual table pointer and is null while the node is not
/// queued.
class VTUI_EXPORT Node
{
  public:
    virtual ~Node() = default;

    /// The symbolic colour; null once it has been resolved.
    const char* get_name() const { return name; }
    /// Forgets the symbolic colour.
    void nuke_name() { name = nullptr; }

    bool is_queued() const { return link != nullptr; }

  protected:
    Node() = default;
    /// A copy waits in no queue.
    Node(const Node&) {}
    Node& operator=(const Node&) = delete;

    template <class N>
    friend class List;

    Node* link{nullptr};
    const char* name{nullptr}; ///< not owned
};

/// A colour attribute as the queue sees it.
class VTUI_EXPORT Attribute_node : public Node
{
  public:
    virtual void set_colour(std::uint8_t palette_index) = 0;

    /// The object whose colour this is.
    VT_obj* get_object() const { return object; }

  protected:
    explicit Attribute_node(VT_obj* owner) : object(owner) {}

    VT_obj* object; ///< not owned; a node without an object ends a run of resolve_colours()
};

/// The queue of the nodes that wait for their colour. Not locked: one thread at a time.
template <class N>
class List
{
  public:
    /// The queue of the whole process.
    static List unresolved;

    /// Takes every waiting node, first in first out, gives it the colour that `resolve` answers and drops its name.
    /// Nodes that `resolve` itself queues are taken in the same run. False only without a function to ask.
    static bool resolve_colours(unsigned char (*resolve)(N&));

    void add(N& node);
    void remove(N& node);

    unsigned size() const { return count; }

  private:
    /// Behind the last node stands this mark, not null: a queued node's link is never null.
    static Node* end_mark() { return reinterpret_cast<Node*>(~std::uintptr_t{0}); }

    void take(Node& node, Node* before);

    unsigned count{0};
    Node* head{end_mark()};
    Node* tail{end_mark()};
};

template <class N>
void List<N>::add(N& node)
{
    if (node.is_queued())
        return;
    (head == end_mark() ? head : tail->link) = &node;
    tail = &node;
    node.link = end_mark();
    ++count;
}

/// Unlinks `node`; `before` is the node in front of it, or the end mark for the head.
template <class N>
void List<N>::take(Node& node, Node* before)
{
    (&node == head ? head : before->link) = node.link;
    if (&node == tail)
        tail = before;
    --count;
    node.link = nullptr;
}

template <class N>
void List<N>::remove(N& node)
{
    Node* before = end_mark();
    for (Node* at = head; at != end_mark(); before = at, at = at->link) {
        if (at == &node) {
            take(*at, before);
            return;
        }
    }
}

template <class N>
bool List<N>::resolve_colours(unsigned char (*resolve)(N&))
{
    if (!resolve)
        return false;
    while (unresolved.head != end_mark()) {
        N& node = static_cast<N&>(*unresolved.head);
        unresolved.take(node, end_mark());
        if (!node.get_object())
            return true;
        node.set_colour(resolve(node));
        node.nuke_name();
    }
    return true;
}

template <>
VTUI_EXPORT List<Attribute_node> List<Attribute_node>::unresolved;

} // namespace Resolve_colour

/// A palette index (0 to 255), or a symbolic colour that waits in the queue for its index.
class VTUI_EXPORT Attribute_colour final : public Resolve_colour::Attribute_node
{
  public:
    Attribute_colour(VT_obj* owner, std::uint8_t initial) : Attribute_node(owner), value(initial) {}
    Attribute_colour(const Attribute_colour&) = default;
    ~Attribute_colour() override;

    operator std::uint8_t() const { return value; }

    /// A number settles the colour: a symbolic one that still waits is dropped.
    Attribute_colour& operator=(std::uint8_t palette_index);
    /// Takes over the index, not what the other waits for.
    Attribute_colour& operator=(const Attribute_colour& other) { return *this = other.value; }

    /// Queues the attribute until the pool resolves `symbol`, which must live until then. The index stays as it is
    /// meanwhile.
    void set_symbol(const char* symbol);

    void set_colour(std::uint8_t palette_index) override;

    bool changed() const { return is_changed; }
    void set_told() { is_changed = false; }
    void print(std::ostream& out, unsigned indent, const char* attribute) const;

  private:
    std::uint8_t value;
    bool is_changed{false};
};

} // namespace VT

#endif
