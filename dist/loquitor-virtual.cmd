@echo off
rem Starts Loquitor and a virtual Orvatone on a port number of its own. This window shows what the
rem virtual chip receives. The line 3h, typed here, makes its input 3 high, 3l low.
title Virtual Orvatone (close this window to end it)
pushd "%~dp0"
set pipe=\\.\pipe\virtual-orvatone
set number=
for /f %%n in ('loquitor-say.exe --add-port %pipe%') do set number=%%n
if not defined number goto failed
echo The virtual Orvatone is serial port %number%: type %number% into the port box of the main window.
start "" Loquitor.exe
virtual-orvatone.exe --link %pipe% --speak
if not errorlevel 1 exit /b
:failed
pause
