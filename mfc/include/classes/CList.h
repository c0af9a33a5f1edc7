// The list template, and what all lists of the library share.
//
// A POSITION names an element and stays valid until that very element is removed. A NULL position
// where an element is needed, or a value asked of an empty list, throws CInvalidArgException.
#pragma once

#include <classes/CException.h>
#include <classes/CObject.h>
#include <classes/ElementHelpers.h>
#include <classes/Platform.h>

#include <utility>

/// True when the two are equal; may be specialised. Lists and maps find elements with it.
template <class TYPE, class ARG_TYPE>
BOOL AFXAPI CompareElements(const TYPE* pElement1, const ARG_TYPE* pElement2)
{
    return *pElement1 == *pElement2;
}

namespace afxint {

/// Elements in nodes that are linked both ways.
template <class TYPE, class ARG_TYPE>
class ListBase : public CObject
{
public:
    /// The block size is accepted for compatibility; each element is allocated by itself.
    explicit ListBase([[maybe_unused]] INT_PTR nBlockSize = 10) { ASSERT(nBlockSize > 0); }
    ~ListBase() override { RemoveAll(); }

    INT_PTR GetCount() const { return count_; }
    INT_PTR GetSize() const { return count_; }
    BOOL IsEmpty() const { return count_ == 0; }

    TYPE& GetHead() { return Checked(head_)->value; }
    const TYPE& GetHead() const { return Checked(head_)->value; }
    TYPE& GetTail() { return Checked(tail_)->value; }
    const TYPE& GetTail() const { return Checked(tail_)->value; }
    TYPE RemoveHead() { return Take(Checked(head_)); }
    TYPE RemoveTail() { return Take(Checked(tail_)); }
    POSITION AddHead(ARG_TYPE newElement) { return Link(newElement, head_); }
    POSITION AddTail(ARG_TYPE newElement) { return Link(newElement, NULL); }
    /// These add all elements of another list, in their order.
    void AddHead(ListBase* pNewList);
    void AddTail(ListBase* pNewList);
    void RemoveAll();

    POSITION GetHeadPosition() const { return Position(head_); }
    POSITION GetTailPosition() const { return Position(tail_); }
    /// The element at the position, which moves on, to NULL after the last one.
    TYPE& GetNext(POSITION& rPosition) { return Step(rPosition, &Node::next); }
    const TYPE& GetNext(POSITION& rPosition) const { return Step(rPosition, &Node::next); }
    TYPE& GetPrev(POSITION& rPosition) { return Step(rPosition, &Node::previous); }
    const TYPE& GetPrev(POSITION& rPosition) const { return Step(rPosition, &Node::previous); }

    TYPE& GetAt(POSITION position) { return At(position)->value; }
    const TYPE& GetAt(POSITION position) const { return At(position)->value; }
    void SetAt(POSITION pos, ARG_TYPE newElement) { At(pos)->value = newElement; }
    void RemoveAt(POSITION position) { delete Unlink(At(position)); }
    /// With a NULL position these add at the head and at the tail.
    POSITION InsertBefore(POSITION position, ARG_TYPE newElement);
    POSITION InsertAfter(POSITION position, ARG_TYPE newElement);

    /// The first equal element after startAfter, or of the whole list; NULL when there is none.
    POSITION Find(ARG_TYPE searchValue, POSITION startAfter = NULL) const;
    POSITION FindIndex(INT_PTR nIndex) const;

    void AssertValid() const override { ASSERT((head_ == NULL) == (count_ == 0)); }

private:
    struct Node
    {
        TYPE value;
        Node* previous;
        Node* next;
    };

    static POSITION Position(Node* node) { return reinterpret_cast<POSITION>(node); }
    static Node* Checked(Node* node)
    {
        if (node == NULL)
            AfxThrowInvalidArgException();
        return node;
    }
    static Node* At(POSITION position) { return Checked(reinterpret_cast<Node*>(position)); }
    static TYPE& Step(POSITION& position, Node* Node::*towards)
    {
        Node* node = At(position);
        position = Position(node->*towards);
        return node->value;
    }
    POSITION Link(ARG_TYPE value, Node* before);
    Node* Unlink(Node* node);
    TYPE Take(Node* node);

    Node* head_ = NULL;
    Node* tail_ = NULL;
    INT_PTR count_ = 0;
};

template <class TYPE, class ARG_TYPE>
void ListBase<TYPE, ARG_TYPE>::AddHead(ListBase* pNewList)
{
    if (pNewList == NULL)
        AfxThrowInvalidArgException();
    // Backwards from the last element of now: the list may be added to itself.
    INT_PTR left = pNewList->count_;
    for (Node* node = pNewList->tail_; left > 0; node = node->previous, --left)
        AddHead(node->value);
}

template <class TYPE, class ARG_TYPE>
void ListBase<TYPE, ARG_TYPE>::AddTail(ListBase* pNewList)
{
    if (pNewList == NULL)
        AfxThrowInvalidArgException();
    INT_PTR left = pNewList->count_;
    for (Node* node = pNewList->head_; left > 0; node = node->next, --left)
        AddTail(node->value);
}

template <class TYPE, class ARG_TYPE>
void ListBase<TYPE, ARG_TYPE>::RemoveAll()
{
    while (head_ != NULL)
        delete Unlink(head_);
}

template <class TYPE, class ARG_TYPE>
POSITION ListBase<TYPE, ARG_TYPE>::InsertBefore(POSITION position, ARG_TYPE newElement)
{
    return position == NULL ? AddHead(newElement) : Link(newElement, At(position));
}

template <class TYPE, class ARG_TYPE>
POSITION ListBase<TYPE, ARG_TYPE>::InsertAfter(POSITION position, ARG_TYPE newElement)
{
    return position == NULL ? AddTail(newElement) : Link(newElement, At(position)->next);
}

template <class TYPE, class ARG_TYPE>
POSITION ListBase<TYPE, ARG_TYPE>::Find(ARG_TYPE searchValue, POSITION startAfter) const
{
    Node* node = startAfter == NULL ? head_ : At(startAfter)->next;
    while (node != NULL && !CompareElements(&node->value, &searchValue))
        node = node->next;
    return Position(node);
}

template <class TYPE, class ARG_TYPE>
POSITION ListBase<TYPE, ARG_TYPE>::FindIndex(INT_PTR nIndex) const
{
    if (nIndex < 0 || nIndex >= count_)
        return NULL;
    Node* node = head_;
    while (nIndex-- > 0)
        node = node->next;
    return Position(node);
}

/// Enters a new element before the given one, or at the tail.
template <class TYPE, class ARG_TYPE>
POSITION ListBase<TYPE, ARG_TYPE>::Link(ARG_TYPE value, Node* before)
{
    Node* previous = before == NULL ? tail_ : before->previous;
    Node* node = new Node{TYPE(value), previous, before};
    (previous == NULL ? head_ : previous->next) = node;
    (before == NULL ? tail_ : before->previous) = node;
    ++count_;
    return Position(node);
}

template <class TYPE, class ARG_TYPE>
typename ListBase<TYPE, ARG_TYPE>::Node* ListBase<TYPE, ARG_TYPE>::Unlink(Node* node)
{
    (node->previous == NULL ? head_ : node->previous->next) = node->next;
    (node->next == NULL ? tail_ : node->next->previous) = node->previous;
    --count_;
    return node;
}

template <class TYPE, class ARG_TYPE>
TYPE ListBase<TYPE, ARG_TYPE>::Take(Node* node)
{
    TYPE value = std::move(node->value);
    delete Unlink(node);
    return value;
}

} // namespace afxint

/// A list of TYPE; ARG_TYPE is how elements are handed over (often const TYPE&).
template <class TYPE, class ARG_TYPE = const TYPE&>
class CList : public afxint::ListBase<TYPE, ARG_TYPE>
{
public:
    explicit CList(INT_PTR nBlockSize = 10) : afxint::ListBase<TYPE, ARG_TYPE>(nBlockSize) {}

    /// With SerializeElements, called for each element. Loading adds to what the list has.
    void Serialize(CArchive& ar) override;
    void Dump(CDumpContext& dc) const override
    {
        afxint::DumpHead(dc, *this);
        if (dc.GetDepth() <= 0)
            return;
        for (POSITION at = this->GetHeadPosition(); at != NULL;)
            DumpElements<TYPE>(dc, &this->GetNext(at), 1);
    }
};

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::Serialize(CArchive& ar)
{
    if (ar.IsStoring()) {
        afxint::WriteCount(ar, this->GetCount());
        for (POSITION at = this->GetHeadPosition(); at != NULL;)
            SerializeElements<TYPE>(ar, &this->GetNext(at), 1);
    } else if constexpr (std::is_default_constructible_v<TYPE>) {
        for (INT_PTR left = afxint::ReadCount(ar); left > 0; --left) {
            TYPE element[1] = {};
            SerializeElements<TYPE>(ar, element, 1);
            this->AddTail(element[0]);
        }
    } else {
        AfxThrowNotSupportedException();
    }
}
