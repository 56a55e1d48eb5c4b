// SPDX-License-Identifier: MIT

/* Gemeinsame Funktionen der Vereinsseiten */

var knopfAus = "knopf_aus.gif";
var knopfAn = "knopf_an.gif";
var vorrat = new Array();

function bilderVorladen() {
  var i;
  for (i = 0; i < bilderVorladen.arguments.length; i++) {
    vorrat[i] = new Image();
    vorrat[i].src = bilderVorladen.arguments[i];
  }
}

// Tauscht das kleine Blatt vor einem Menüpunkt aus.
function tausche(name, an) {
  if (!document.images) return;
  var bild = document.images[name];
  var ordner = bild.src.substring(0, bild.src.lastIndexOf("/") + 1);
  bild.src = ordner + (an ? knopfAn : knopfAus);
}

function alsZahl(text) {
  var zahl = parseFloat(text.replace(/\./g, "").replace(/,/, "."));
  return isNaN(zahl) ? 0 : zahl;
}

function alsBetrag(zahl) {
  var cent = Math.round(zahl * 100);
  var rest = cent % 100;
  return Math.floor(cent / 100) + "," + (rest < 10 ? "0" : "") + rest + " EUR";
}

// Pacht, Wasser und Jahresbeitrag zusammenzählen
function rechneKosten(formular) {
  var flaeche = alsZahl(formular.flaeche.value);
  var wasser = alsZahl(formular.wasser.value);
  if (flaeche <= 0) {
    alert("Bitte geben Sie die Größe Ihres Gartens ein.");
    formular.flaeche.focus();
    return;
  }
  formular.summe.value = alsBetrag(42 + flaeche * 0.31 + wasser * 1.85);
}

function zaehleZeichen(feld, hoechstens) {
  if (feld.value.length > hoechstens)
    feld.value = feld.value.substring(0, hoechstens);
  window.status = "Noch " + (hoechstens - feld.value.length) + " Zeichen übrig";
}
