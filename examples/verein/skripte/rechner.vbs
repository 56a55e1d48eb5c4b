' SPDX-License-Identifier: MIT
' Umrechnung alter Beträge für die Kassenblätter bis 2001
Option Explicit

Const Kurs = 1.95583

Function InEuro(Mark)
  InEuro = FormatNumber(Mark / Kurs, 2) & " EUR"
End Function

Sub FrageBetrag()
  Dim Eingabe
  Eingabe = InputBox("Welchen Betrag in DM möchten Sie umrechnen?", "Kassenhilfe", "10,00")
  If IsNumeric(Eingabe) Then
    MsgBox Eingabe & " DM sind " & InEuro(CDbl(Eingabe)) & ".", vbInformation, "Kassenhilfe"
  ElseIf Eingabe <> "" Then
    MsgBox "Bitte geben Sie eine Zahl ein.", vbExclamation, "Kassenhilfe"
  End If
End Sub

Sub ZurStartseite()
  window.navigate("../index.htm")
End Sub
