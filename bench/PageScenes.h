// Pages with the same content, made of the system's own controls and of the toolkit's.
#pragma once

#include <functional>
#include <memory>

enum class SceneKind { plain, toolkit, buffered };

/// A page on the screen with a number of controls, half of them labels and half of them buttons,
/// beside a text and two standard buttons.
class PageScene
{
public:
    PageScene(SceneKind kind, int controls);
    ~PageScene();

    /// Uncovered and painted; or hidden, so that others are.
    void Show(bool shown);
    /// The whole of it, at once.
    void Repaint();

private:
    struct Content;
    std::unique_ptr<Content> m_content;
};
