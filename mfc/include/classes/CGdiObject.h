// The base of the wrappers of drawing objects: pens, brushes, fonts, bitmaps, palettes, regions.
#pragma once

#include <classes/CObject.h>

/// Holds a GDI handle and owns it: the destructor deletes what is still held. Objects that
/// FromHandle makes for foreign handles are temporary and own nothing.
///
/// What creates or loads in the derived classes is for objects that hold none, and returns FALSE on
/// failure.
class AFX_EXPORTED CGdiObject : public CObject
{
    DECLARE_DYNCREATE(CGdiObject)

public:
    CGdiObject();
    virtual ~CGdiObject();
    void AssertValid() const override;
    void Dump(CDumpContext& dc) const override;

    HGDIOBJ m_hObject; ///< NULL while nothing is held.

    operator HGDIOBJ() const;
    /// The handle; NULL also for a NULL object.
    HGDIOBJ GetSafeHandle() const;

    /// The object that owns the handle, else a temporary one that lives until the next idle time.
    static CGdiObject* PASCAL FromHandle(HGDIOBJ hObject);
    static void PASCAL DeleteTempMap();
    /// Takes the handle over. Only for objects that hold none. FALSE for a NULL handle.
    BOOL Attach(HGDIOBJ hObject);
    /// Gives the handle up without deleting it.
    HGDIOBJ Detach();
    /// Deletes the handle and empties the object. Stock handles come to no harm.
    BOOL DeleteObject();

    int GetObject(int nCount, LPVOID lpObject) const;
    UINT GetObjectType() const;
    BOOL CreateStockObject(int nIndex);
    BOOL UnrealizeObject();

    BOOL operator==(const CGdiObject& obj) const;
    BOOL operator!=(const CGdiObject& obj) const;
};
