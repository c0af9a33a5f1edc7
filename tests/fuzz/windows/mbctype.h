#pragma once

/// Whether the byte leads a character of two bytes.
int _ismbblead(unsigned int byte);
