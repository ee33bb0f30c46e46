#ifndef NV_STORE_LIST_H
#define NV_STORE_LIST_H

namespace NV_store {

template <class T>
class List;

/// A place in a list, kept in the object that is listed: entering and leaving allocate nothing and cannot fail. It is
/// to leave before it is destroyed; whose lock guards it, the owner of the list says.
template <class T>
class Link
{
  public:
    explicit Link(T& listed) : owner(&listed) {}
    Link(const Link&) = delete;
    Link& operator=(const Link&) = delete;

    bool is_listed() const { return next != this; }
    /// Does nothing if it is in no list.
    void leave()
    {
        previous->next = next;
        next->previous = previous;
        previous = next = this;
    }

  private:
    friend class List<T>;

    Link() = default; // the head of a list

    T* owner{nullptr};
    Link* previous{this};
    Link* next{this};
};

/// Objects in the order in which they entered.
template <class T>
class List
{
  public:
    bool is_empty() const { return !head.is_listed(); }
    /// The link is in no list.
    void append(Link<T>& link)
    {
        link.previous = head.previous;
        link.next = &head;
        head.previous->next = &link;
        head.previous = &link;
    }
    /// Takes over all of another list, behind its own.
    void append(List& other)
    {
        if (other.is_empty())
            return;
        Link<T>& first = *other.head.next;
        Link<T>& last = *other.head.previous;
        other.head.previous = other.head.next = &other.head;
        first.previous = head.previous;
        head.previous->next = &first;
        last.next = &head;
        head.previous = &last;
    }
    /// The first one, which leaves; null if there is none.
    T* take_first()
    {
        Link<T>& link = *head.next;
        link.leave();
        return link.owner;
    }
    /// None may enter or leave meanwhile.
    template <class Function>
    void for_each(Function function) const
    {
        for (const Link<T>* link = head.next; link != &head; link = link->next)
            function(*link->owner);
    }

  private:
    Link<T> head;
};

} // namespace NV_store

#endif
