#pragma once

// What every fuzz target that ends with a favourites list demands of it.

#include "featuretree/favoritesdata.h"

#include <cstdlib>

//! Aborts on an empty name or on two equal favourites.
inline void abortOnDamagedFavourites(const FavoritesData& store)
{
    for (int i = 0; i < store.countNodes(); ++i) {
        if (store.nodeAt(i)->name.isEmpty())
            std::abort();
        for (int j = i + 1; j < store.countNodes(); ++j)
            if (store.nodeAt(i)->name == store.nodeAt(j)->name
                && store.nodeAt(i)->nodeMapName == store.nodeAt(j)->nodeMapName)
                std::abort();
    }
}
