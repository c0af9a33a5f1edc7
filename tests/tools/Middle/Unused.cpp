#error This file is not a part of the release.
