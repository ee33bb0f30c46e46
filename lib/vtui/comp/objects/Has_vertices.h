#ifndef VTUI_COMP_HAS_VERTICES_H
#define VTUI_COMP_HAS_VERTICES_H

#include "vt/Attribute.h"
#include "vtui/comp/objects/Array_array.h"

#include <cstddef>
#include <cstdint>
#include <utility>

namespace VT::Comp {

/// The points of one polygon: a component computes them and writes them out into the attributes of the polygon's list.
class VTUI_EXPORT Vertices
{
  public:
    /// The first of size() consecutive attributes.
    virtual VT::Attribute_point* get() = 0;
    virtual std::size_t size() const = 0;
    /// Writes every point into its attribute, in order.
    virtual void deref() = 0;
    virtual ~Vertices() = default;

    /// Point `i` before it is written out, for the pool: a scaled polygon keeps its shape when it is written out again.
    virtual std::pair<short, short>& point(std::size_t i) = 0;
};

template <template <typename> class Array_type>
class VTUI_EXPORT Vertex_array : public Vertices
{
  public:
    Array_type<std::pair<short, short>> points; ///< x, y: pixels from the polygon's top left corner
    Array_type<VT::Attribute_point> attributes;

    VT::Attribute_point* get() override { return &attributes[0]; }
    std::size_t size() const override { return attributes.size(); }
    void deref() override;
    std::pair<short, short>& point(std::size_t i) override { return points[i]; }
};

template <template <typename> class Array_type>
void Vertex_array<Array_type>::deref()
{
    // A component's coordinates are signed, the record's are not: a negative one wraps.
    for (std::size_t i = 0; i < points.size(); ++i) {
        attributes[i].x = static_cast<std::uint16_t>(points[i].first);
        attributes[i].y = static_cast<std::uint16_t>(points[i].second);
    }
}

/// A polygon whose points a component computes.
class VTUI_EXPORT Has_vertices
{
  public:
    Vertices* vertices_ptr{nullptr}; ///< not owned
};

} // namespace VT::Comp

#endif
