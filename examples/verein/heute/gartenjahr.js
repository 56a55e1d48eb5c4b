// SPDX-License-Identifier: MIT
'use strict';

const suche = document.querySelector('#suche');
const nurJetzt = document.querySelector('#nur-jetzt');
const treffer = document.querySelector('#treffer');
const karten = [...document.querySelectorAll('article[data-monat]')];

// Vergleicht ohne Rücksicht auf Groß- und Kleinschreibung und auf Umlaute.
const schlicht = (text) =>
  text.normalize('NFD').replace(/\p{Diacritic}/gu, '').toLowerCase();

class Filter {
  #begriff = '';
  #monat = null;

  set begriff(wert) {
    this.#begriff = schlicht(wert.trim());
  }

  set monat(wert) {
    this.#monat = wert;
  }

  passt({ textContent, dataset }) {
    const richtigerMonat = this.#monat === null || Number(dataset.monat) === this.#monat;
    return richtigerMonat && schlicht(textContent).includes(this.#begriff);
  }
}

const filter = new Filter();

function zeige() {
  filter.begriff = suche?.value ?? '';
  filter.monat = nurJetzt.checked ? new Date().getMonth() + 1 : null;

  let anzahl = 0;
  for (const karte of karten) {
    karte.hidden = !filter.passt(karte);
    anzahl += karte.hidden ? 0 : 1;
  }
  treffer.value = anzahl === 1 ? 'ein Eintrag' : `${anzahl} Einträge`;
}

document.querySelector('#filter').addEventListener('submit', (ereignis) => ereignis.preventDefault());
suche.addEventListener('input', zeige);
nurJetzt.addEventListener('change', zeige);
zeige();
