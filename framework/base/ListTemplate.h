#pragma once
// What the list classes have in common.

#include "afx.h"

namespace framework
{
/// A doubly linked list. A null position where an element is needed throws CInvalidArgException.
template <class TYPE, class ARG_TYPE> class ListStorage : public CObject
{
public:
    ~ListStorage() override { RemoveAll(); }

    INT_PTR GetCount() const { return m_count; }
    INT_PTR GetSize() const { return m_count; }
    BOOL IsEmpty() const { return m_count == 0; }

    TYPE & GetHead() { return Checked(m_head)->value; }
    TYPE const & GetHead() const { return Checked(m_head)->value; }
    TYPE & GetTail() { return Checked(m_tail)->value; }
    TYPE const & GetTail() const { return Checked(m_tail)->value; }
    TYPE RemoveHead()
    {
        TYPE const value = Checked(m_head)->value;
        Unlink(m_head);
        return value;
    }
    TYPE RemoveTail()
    {
        TYPE const value = Checked(m_tail)->value;
        Unlink(m_tail);
        return value;
    }
    POSITION AddHead(ARG_TYPE newElement) { return Position(Link(nullptr, m_head, newElement)); }
    POSITION AddTail(ARG_TYPE newElement) { return Position(Link(m_tail, nullptr, newElement)); }
    void RemoveAll()
    {
        while (m_head != nullptr)
            Unlink(m_head);
    }

    POSITION GetHeadPosition() const { return Position(m_head); }
    POSITION GetTailPosition() const { return Position(m_tail); }
    TYPE & GetNext(POSITION & rPosition) { return Step(rPosition, &Node::next)->value; }
    TYPE const & GetNext(POSITION & rPosition) const { return Step(rPosition, &Node::next)->value; }
    TYPE & GetPrev(POSITION & rPosition) { return Step(rPosition, &Node::previous)->value; }
    TYPE const & GetPrev(POSITION & rPosition) const { return Step(rPosition, &Node::previous)->value; }
    TYPE & GetAt(POSITION position) { return Checked(position)->value; }
    TYPE const & GetAt(POSITION position) const { return Checked(position)->value; }
    void SetAt(POSITION pos, ARG_TYPE newElement) { Checked(pos)->value = newElement; }
    void RemoveAt(POSITION position) { Unlink(Checked(position)); }
    /// Before no place: at the head.
    POSITION InsertBefore(POSITION position, ARG_TYPE newElement)
    {
        if (position == nullptr)
            return AddHead(newElement);
        Node * const node = Checked(position);
        return Position(Link(node->previous, node, newElement));
    }
    /// Behind no place: at the tail.
    POSITION InsertAfter(POSITION position, ARG_TYPE newElement)
    {
        if (position == nullptr)
            return AddTail(newElement);
        Node * const node = Checked(position);
        return Position(Link(node, node->next, newElement));
    }
    POSITION FindIndex(INT_PTR nIndex) const
    {
        if (nIndex < 0 || nIndex >= m_count)
            return nullptr;
        Node * node = m_head;
        for (; nIndex > 0; --nIndex)
            node = node->next;
        return Position(node);
    }

    void AssertValid() const override
    {
        CObject::AssertValid();
        ASSERT((m_count == 0) == (m_head == nullptr) && (m_count == 0) == (m_tail == nullptr));
    }
    void Dump(CDumpContext & dc) const override
    {
        CObject::Dump(dc);
        dc << "with " << static_cast<LONGLONG>(m_count) << " elements\n";
    }

protected:
    ListStorage() = default;

    /// The first place behind startAfter (null: from the head) whose element fits.
    template <class Fits> POSITION FindWhere(POSITION startAfter, Fits fits) const
    {
        Node * node = startAfter == nullptr ? m_head : Checked(startAfter)->next;
        while (node != nullptr && !fits(node->value))
            node = node->next;
        return Position(node);
    }
    void AddListAtHead(ListStorage const * list)
    {
        if (list == nullptr)
            AfxThrowInvalidArgException();
        Node * source = list->m_tail;
        for (INT_PTR left = list->m_count; left > 0; --left, source = source->previous)
            Link(nullptr, m_head, source->value);
    }
    void AddListAtTail(ListStorage const * list)
    {
        if (list == nullptr)
            AfxThrowInvalidArgException();
        Node * source = list->m_head;
        for (INT_PTR left = list->m_count; left > 0; --left, source = source->next)
            Link(m_tail, nullptr, source->value);
    }

private:
    struct Node
    {
        Node * previous;
        Node * next;
        TYPE value;
    };

    static POSITION Position(Node * node) { return reinterpret_cast<POSITION>(node); }
    static Node * Checked(Node * node)
    {
        if (node == nullptr)
            AfxThrowInvalidArgException();
        return node;
    }
    static Node * Checked(POSITION position) { return Checked(reinterpret_cast<Node *>(position)); }
    static Node * Step(POSITION & position, Node * Node::*way)
    {
        Node * const node = Checked(position);
        position = Position(node->*way);
        return node;
    }
    template <class Value> Node * Link(Node * previous, Node * next, Value const & value)
    {
        Node * const node = new (std::nothrow) Node{previous, next, TYPE()};
        if (node == nullptr)
            AfxThrowMemoryException();
        try
        {
            node->value = value;
        }
        catch (...)
        {
            delete node;
            throw;
        }
        (previous == nullptr ? m_head : previous->next) = node;
        (next == nullptr ? m_tail : next->previous) = node;
        ++m_count;
        return node;
    }
    void Unlink(Node * node)
    {
        (node->previous == nullptr ? m_head : node->previous->next) = node->next;
        (node->next == nullptr ? m_tail : node->next->previous) = node->previous;
        --m_count;
        delete node;
    }

    Node * m_head = nullptr;
    Node * m_tail = nullptr;
    INT_PTR m_count = 0;
};

/// A list whose elements are compared with ==.
template <class TYPE, class ARG_TYPE> class PlainList : public ListStorage<TYPE, ARG_TYPE>
{
    using Base = ListStorage<TYPE, ARG_TYPE>;

public:
    using Base::AddHead;
    using Base::AddTail;
    void AddHead(PlainList * pNewList) { this->AddListAtHead(pNewList); }
    void AddTail(PlainList * pNewList) { this->AddListAtTail(pNewList); }
    POSITION Find(ARG_TYPE searchValue, POSITION startAfter = nullptr) const
    {
        return this->FindWhere(startAfter, [&](TYPE const & value) { return value == searchValue; });
    }

protected:
    PlainList() = default;
};
} // namespace framework
