@echo off
rem A silent signing run on sample drawings, in the folder demo-out beside this file. Nothing is registered or installed.
rem demo.cmd interactive shows the dialogs instead.
setlocal
cd /d "%~dp0"
if not exist demo-out mkdir demo-out
cd demo-out
set SIGNSERVER_JOURNAL=%CD%\sign-server.log
..\varnoke-samples.exe .
if errorlevel 1 goto failed
del Varnoke.ini
if "%1"=="interactive" (
    ..\varnoke-host.exe sign --message message.xml --vault vault --work work
) else (
    ..\varnoke-host.exe back-sign --message message.xml --vault vault --work work --return return.xml
)
if errorlevel 1 goto failed
echo The return file: %CD%\return_Ret.Xml
exit /b 0
:failed
echo It failed. varnoke-doctor.exe tells what is missing.
exit /b 1
