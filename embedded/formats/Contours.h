#pragma once

#include <kvcam/Records.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace KVCAM::Embedded {

/// One side of a contour: a straight line, or an arc about `centre`. Micrometres.
struct Side
{
    API::point to;
    bool arc = false;
    bool clockwise = false;
    API::point centre;
};

/// A read-only sequence whose elements are made when asked for: `List` has a size() and an operator[].
template <class List>
class MadeIterator
{
public:
    MadeIterator(List const & list, std::size_t index) : m_list(&list), m_index(index) {}
    auto operator*() const { return (*m_list)[m_index]; }
    MadeIterator & operator++()
    {
        ++m_index;
        return *this;
    }
    bool operator!=(MadeIterator const & other) const { return m_index != other.m_index; }

private:
    List const * m_list;
    std::size_t m_index;
};

/// The contours of a surface. Files may hold tens of millions of sides, nearly all of them straight: those
/// take one point each, arcs are in a table beside. Contours and sides are made when they are asked for.
class Contours
{
    struct Arc
    {
        API::point centre;
        std::uint32_t side;
        bool clockwise;
    };
    struct Head
    {
        API::point start;
        std::uint32_t firstSide;
        bool island;
    };
    struct Data
    {
        std::vector<Head> heads;
        std::vector<API::point> ends; // of the sides of all contours
        std::vector<Arc> arcs;        // ascending by side
    };

public:
    /// The sides of one contour. Valid as long as the contours are and nothing is added.
    class Sides
    {
    public:
        std::size_t size() const { return m_size; }
        bool empty() const { return m_size == 0; }
        Side operator[](std::size_t index) const;
        Side front() const { return (*this)[0]; }
        Side back() const { return (*this)[m_size - 1]; }
        MadeIterator<Sides> begin() const { return {*this, 0}; }
        MadeIterator<Sides> end() const { return {*this, m_size}; }

    private:
        friend class Contours;
        Data const * m_data = nullptr;
        std::size_t m_first = 0;
        std::size_t m_size = 0;
    };
    struct Contour
    {
        bool island = true; ///< false: a hole in the preceding islands
        API::point start;
        Sides sides;
    };

    Contours() = default;
    Contours(Contours const & other);
    Contours(Contours && other) noexcept = default;
    Contours & operator=(Contours const & other);
    Contours & operator=(Contours && other) noexcept = default;
    ~Contours() = default;

    std::size_t size() const { return m_data ? m_data->heads.size() : 0; }
    bool empty() const { return size() == 0; }
    Contour operator[](std::size_t index) const;
    Contour front() const { return (*this)[0]; }
    Contour back() const { return (*this)[size() - 1]; }
    MadeIterator<Contours> begin() const { return {*this, 0}; }
    MadeIterator<Contours> end() const { return {*this, size()}; }

    /// Begins a contour.
    void add(API::point start, bool island);
    /// Adds a side to the latest contour; there must be one.
    void addSide(Side const & side);
    /// Gives back the memory that growing has left over.
    void shrink();

private:
    std::unique_ptr<Data> m_data; // none without contours, as in nearly all features
};

using Contour = Contours::Contour;

} // namespace KVCAM::Embedded
