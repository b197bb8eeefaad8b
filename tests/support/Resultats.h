// Failed results told in assertion messages.
#pragma once

#include <string>

#include "frame/Resultat.h"

namespace norvane::test {

// "<position> : <texte>" of a failed result; empty when it succeeded.
template <typename T>
std::string Raison(const Resultat<T>& resultat) {
  return resultat ? std::string() : resultat.Erreur().Position() + " : " + resultat.Erreur().texte;
}

}  // namespace norvane::test
