<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>NumberFormat</name>
    <message>
        <source>Exponential</source>
        <translation>Экспоненциальный</translation>
    </message>
    <message>
        <source>exponential</source>
        <translation>экспоненциальный</translation>
    </message>
    <message>
        <source>Fixed Point</source>
        <translation>С фиксированной точкой</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общий</translation>
    </message>
    <message>
        <source>general</source>
        <translation>общий</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Числовой</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>Дробный</translation>
    </message>
</context>
<context>
    <name>UnitGroup</name>
    <message>
        <source>Dimensionless</source>
        <translation>Безразмерные</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Длина</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Площадь</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Объём</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Масса</translation>
    </message>
    <message>
        <source>Linear Weight</source>
        <translation>Линейная плотность</translation>
    </message>
    <message>
        <source>Amount of Substance</source>
        <translation>Количество вещества</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Угол</translation>
    </message>
    <message>
        <source>Solid Angle</source>
        <translation>Телесный угол</translation>
    </message>
    <message>
        <source>Area Density</source>
        <translation>Поверхностная плотность</translation>
    </message>
    <message>
        <source>Concentration</source>
        <translation>Концентрация</translation>
    </message>
    <message>
        <source>Parts-per</source>
        <translation>Доли (ppm, ppb)</translation>
    </message>
    <message>
        <source>Electric Current</source>
        <translation>Сила электрического тока</translation>
    </message>
    <message>
        <source>Electric Charge</source>
        <translation>Электрический заряд</translation>
    </message>
    <message>
        <source>Capacitance</source>
        <translation>Электрическая ёмкость</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Скорость передачи данных</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Плотность</translation>
    </message>
    <message>
        <source>Unit Weight</source>
        <translation>Удельный вес</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Энергия</translation>
    </message>
    <message>
        <source>Volumetric Flow Rate</source>
        <translation>Объёмный расход</translation>
    </message>
    <message>
        <source>Mass Flow Rate</source>
        <translation>Массовый расход</translation>
    </message>
    <message>
        <source>Flow Rate per Stroke</source>
        <translation>Подача за ход</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Сила</translation>
    </message>
    <message>
        <source>Linear Force</source>
        <translation>Погонная нагрузка</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Частота</translation>
    </message>
    <message>
        <source>Inductance</source>
        <translation>Индуктивность</translation>
    </message>
    <message>
        <source>Magnetic Flux Density</source>
        <translation>Магнитная индукция</translation>
    </message>
    <message>
        <source>Magnetic Flux</source>
        <translation>Магнитный поток</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Мощность</translation>
    </message>
    <message>
        <source>Power per Unit of Volume</source>
        <translation>Мощность на единицу объёма</translation>
    </message>
    <message>
        <source>Power per Unit of Mass</source>
        <translation>Мощность на единицу массы</translation>
    </message>
    <message>
        <source>Power per Unit of Area</source>
        <translation>Мощность на единицу площади</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Давление</translation>
    </message>
    <message>
        <source>Force Scale</source>
        <translation>Масштаб силы</translation>
    </message>
    <message>
        <source>Linear Force Scale</source>
        <translation>Масштаб погонной нагрузки</translation>
    </message>
    <message>
        <source>Area Force Scale</source>
        <translation>Масштаб распределённой нагрузки</translation>
    </message>
    <message>
        <source>Linear Moment</source>
        <translation>Погонный момент</translation>
    </message>
    <message>
        <source>Electrical Resistance</source>
        <translation>Электрическое сопротивление</translation>
    </message>
    <message>
        <source>Electric Conductance</source>
        <translation>Электрическая проводимость</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>Computer Storage</source>
        <translation>Объём информации</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Температура</translation>
    </message>
    <message>
        <source>Temperature Rate</source>
        <translation>Скорость изменения температуры</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Torque</source>
        <translation>Крутящий момент</translation>
    </message>
    <message>
        <source>Dynamic Viscosity</source>
        <translation>Динамическая вязкость</translation>
    </message>
    <message>
        <source>Kinematic Viscosity</source>
        <translation>Кинематическая вязкость</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Ускорение</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Электрическое напряжение</translation>
    </message>
    <message>
        <source>Electric Potential</source>
        <translation>Электрический потенциал</translation>
    </message>
    <message>
        <source>Luminous Intensity</source>
        <translation>Сила света</translation>
    </message>
    <message>
        <source>Illuminance</source>
        <translation>Освещённость</translation>
    </message>
    <message>
        <source>Luminous Energy</source>
        <translation>Световая энергия</translation>
    </message>
    <message>
        <source>Luminous Flux</source>
        <translation>Световой поток</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>Яркость</translation>
    </message>
    <message>
        <source>Luminous Emittance</source>
        <translation>Светимость</translation>
    </message>
    <message>
        <source>Luminous Efficacy</source>
        <translation>Световая отдача</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Потери давления на трение</translation>
    </message>
    <message>
        <source>Rotational Point Spring Coefficient</source>
        <translation>Точечная вращательная жёсткость</translation>
    </message>
    <message>
        <source>Rotational Line Spring Coefficient</source>
        <translation>Погонная вращательная жёсткость</translation>
    </message>
    <message>
        <source>Heat Transfer Coefficient</source>
        <translation>Коэффициент теплопередачи</translation>
    </message>
    <message>
        <source>Airflow Density</source>
        <translation>Плотность воздушного потока</translation>
    </message>
    <message>
        <source>Airflow Divided by Volume</source>
        <translation>Воздушный поток на объём</translation>
    </message>
    <message>
        <source>Airflow Divided by Power</source>
        <translation>Воздушный поток на мощность</translation>
    </message>
    <message>
        <source>Area Divided by Power</source>
        <translation>Площадь на мощность</translation>
    </message>
    <message>
        <source>Moment Scale</source>
        <translation>Масштаб момента</translation>
    </message>
    <message>
        <source>Coefficient of Thermal Expansion</source>
        <translation>Коэффициент теплового расширения</translation>
    </message>
    <message>
        <source>Magnetic Field Intensity</source>
        <translation>Напряжённость магнитного поля</translation>
    </message>
    <message>
        <source>Thermal Conductivity</source>
        <translation>Теплопроводность</translation>
    </message>
    <message>
        <source>Specific Heat</source>
        <translation>Удельная теплоёмкость</translation>
    </message>
    <message>
        <source>Permeability</source>
        <translation>Паропроницаемость</translation>
    </message>
    <message>
        <source>Electrical Resistivity</source>
        <translation>Удельное электрическое сопротивление</translation>
    </message>
    <message>
        <source>Specific Heat of Vaporization</source>
        <translation>Удельная теплота парообразования</translation>
    </message>
</context>
<context>
    <name>UnitType</name>
    <message>
        <source>unitless</source>
        <translation>безразмерная</translation>
    </message>
    <message>
        <source>meter</source>
        <translatorcomment>CLDR: метр</translatorcomment>
        <translation>метр</translation>
    </message>
    <message>
        <source>yottameter</source>
        <translatorcomment>CLDR: иоттаметр</translatorcomment>
        <translation>иоттаметр</translation>
    </message>
    <message>
        <source>zettameter</source>
        <translatorcomment>CLDR: зеттаметр</translatorcomment>
        <translation>зеттаметр</translation>
    </message>
    <message>
        <source>exameter</source>
        <translatorcomment>CLDR: эксаметр</translatorcomment>
        <translation>эксаметр</translation>
    </message>
    <message>
        <source>petameter</source>
        <translatorcomment>CLDR: петаметр</translatorcomment>
        <translation>петаметр</translation>
    </message>
    <message>
        <source>terameter</source>
        <translatorcomment>CLDR: тераметр</translatorcomment>
        <translation>тераметр</translation>
    </message>
    <message>
        <source>gigameter</source>
        <translatorcomment>CLDR: гигаметр</translatorcomment>
        <translation>гигаметр</translation>
    </message>
    <message>
        <source>megameter</source>
        <translatorcomment>CLDR: мегаметр</translatorcomment>
        <translation>мегаметр</translation>
    </message>
    <message>
        <source>kilometer</source>
        <translatorcomment>CLDR: километр</translatorcomment>
        <translation>километр</translation>
    </message>
    <message>
        <source>hectometer</source>
        <translatorcomment>CLDR: гектометр</translatorcomment>
        <translation>гектометр</translation>
    </message>
    <message>
        <source>decameter</source>
        <translatorcomment>CLDR: декаметр</translatorcomment>
        <translation>декаметр</translation>
    </message>
    <message>
        <source>decimeter</source>
        <translatorcomment>CLDR: дециметр</translatorcomment>
        <translation>дециметр</translation>
    </message>
    <message>
        <source>centimeter</source>
        <translatorcomment>CLDR: сантиметр</translatorcomment>
        <translation>сантиметр</translation>
    </message>
    <message>
        <source>millimeter</source>
        <translatorcomment>CLDR: миллиметр</translatorcomment>
        <translation>миллиметр</translation>
    </message>
    <message>
        <source>micrometer</source>
        <translatorcomment>CLDR: микрометр</translatorcomment>
        <translation>микрометр</translation>
    </message>
    <message>
        <source>nanometer</source>
        <translatorcomment>CLDR: нанометр</translatorcomment>
        <translation>нанометр</translation>
    </message>
    <message>
        <source>picometer</source>
        <translatorcomment>CLDR: пикометр</translatorcomment>
        <translation>пикометр</translation>
    </message>
    <message>
        <source>femtometer</source>
        <translatorcomment>CLDR: фемтометр</translatorcomment>
        <translation>фемтометр</translation>
    </message>
    <message>
        <source>attometer</source>
        <translatorcomment>CLDR: аттометр</translatorcomment>
        <translation>аттометр</translation>
    </message>
    <message>
        <source>zeptometer</source>
        <translatorcomment>CLDR: зептометр</translatorcomment>
        <translation>зептометр</translation>
    </message>
    <message>
        <source>yoctometer</source>
        <translatorcomment>CLDR: иоктометр</translatorcomment>
        <translation>иоктометр</translation>
    </message>
    <message>
        <source>inch</source>
        <translatorcomment>CLDR: дюйм</translatorcomment>
        <translation>дюйм</translation>
    </message>
    <message>
        <source>foot</source>
        <translatorcomment>CLDR: фут</translatorcomment>
        <translation>фут</translation>
    </message>
    <message>
        <source>foot (Benoit)</source>
        <translation>фут (Бенуа)</translation>
    </message>
    <message>
        <source>foot (Clarke&apos;s; Cape)</source>
        <translation>фут (Кларк; Кейптаун)</translation>
    </message>
    <message>
        <source>foot (Indian)</source>
        <translation>фут (Индия)</translation>
    </message>
    <message>
        <source>foot (Sear&apos;s)</source>
        <translation>фут (Сирс)</translation>
    </message>
    <message>
        <source>foot (U.S. Survey)</source>
        <translation>геодезический фут (США)</translation>
    </message>
    <message>
        <source>yard</source>
        <translatorcomment>CLDR: ярд</translatorcomment>
        <translation>ярд</translation>
    </message>
    <message>
        <source>chain</source>
        <translation>чейн</translation>
    </message>
    <message>
        <source>chain (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>чейн (Рамсден; инженерный)</translation>
    </message>
    <message>
        <source>furlong</source>
        <translatorcomment>CLDR: фурлонг</translatorcomment>
        <translation>фурлонг</translation>
    </message>
    <message>
        <source>mile</source>
        <translatorcomment>CLDR: миля</translatorcomment>
        <translation>миля</translation>
    </message>
    <message>
        <source>geographical mile</source>
        <translation>географическая миля</translation>
    </message>
    <message>
        <source>mile (U.S. Survey)</source>
        <translation>геодезическая миля (США)</translation>
    </message>
    <message>
        <source>nautical mile</source>
        <translatorcomment>CLDR: морская миля</translatorcomment>
        <translation>морская миля</translation>
    </message>
    <message>
        <source>statute mile</source>
        <translation>уставная миля</translation>
    </message>
    <message>
        <source>nautical mile (admiralty)</source>
        <translation>морская миля (Адмиралтейство)</translation>
    </message>
    <message>
        <source>micron</source>
        <translation>микрон</translation>
    </message>
    <message>
        <source>microinch</source>
        <translatorcomment>CLDR: микродюйм</translatorcomment>
        <translation>микродюйм</translation>
    </message>
    <message>
        <source>angstrom</source>
        <translation>ангстрем</translation>
    </message>
    <message>
        <source>astronomical unit</source>
        <translatorcomment>CLDR: астрономическая единица</translatorcomment>
        <translation>астрономическая единица</translation>
    </message>
    <message>
        <source>cable</source>
        <translation>кабельтов</translation>
    </message>
    <message>
        <source>cubit</source>
        <translation>локоть</translation>
    </message>
    <message>
        <source>fathom</source>
        <translatorcomment>CLDR: морская сажень</translatorcomment>
        <translation>морская сажень</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>хэнд</translation>
    </message>
    <message>
        <source>light-year</source>
        <translatorcomment>CLDR: световой год</translatorcomment>
        <translation>световой год</translation>
    </message>
    <message>
        <source>span</source>
        <translation>пядь</translation>
    </message>
    <message>
        <source>span (cloth)</source>
        <translation>пядь (ткань)</translation>
    </message>
    <message>
        <source>parsec</source>
        <translatorcomment>CLDR: парсек</translatorcomment>
        <translation>парсек</translation>
    </message>
    <message>
        <source>nautical league</source>
        <translation>морская лига</translation>
    </message>
    <message>
        <source>league</source>
        <translation>лига</translation>
    </message>
    <message>
        <source>mil</source>
        <translation>мил (тысячная дюйма)</translation>
    </message>
    <message>
        <source>mil (Sweden and Norway)</source>
        <translation>скандинавская миля (Швеция и Норвегия)</translation>
    </message>
    <message>
        <source>link</source>
        <translation>линк</translation>
    </message>
    <message>
        <source>link (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>линк (Рамсден; инженерный)</translation>
    </message>
    <message>
        <source>pace</source>
        <translation>шаг</translation>
    </message>
    <message>
        <source>palm</source>
        <translation>ладонь (3 дюйма)</translation>
    </message>
    <message>
        <source>rod</source>
        <translation>род</translation>
    </message>
    <message>
        <source>rope</source>
        <translation>роуп</translation>
    </message>
    <message>
        <source>skein</source>
        <translation>моток</translation>
    </message>
    <message>
        <source>caliber</source>
        <translation>калибр</translation>
    </message>
    <message>
        <source>survey inch</source>
        <translation>геодезический дюйм</translation>
    </message>
    <message>
        <source>survey yard</source>
        <translation>геодезический ярд</translation>
    </message>
    <message>
        <source>survey rod</source>
        <translation>геодезический род</translation>
    </message>
    <message>
        <source>bolt</source>
        <translation>болт (рулон ткани)</translation>
    </message>
    <message>
        <source>square meter</source>
        <translatorcomment>CLDR: квадратный метр</translatorcomment>
        <translation>квадратный метр</translation>
    </message>
    <message>
        <source>square inch</source>
        <translatorcomment>CLDR: квадратный дюйм</translatorcomment>
        <translation>квадратный дюйм</translation>
    </message>
    <message>
        <source>square foot</source>
        <translatorcomment>CLDR: квадратный фут</translatorcomment>
        <translation>квадратный фут</translation>
    </message>
    <message>
        <source>square yard</source>
        <translatorcomment>CLDR: квадратный ярд</translatorcomment>
        <translation>квадратный ярд</translation>
    </message>
    <message>
        <source>acre</source>
        <translatorcomment>CLDR: акр</translatorcomment>
        <translation>акр</translation>
    </message>
    <message>
        <source>section</source>
        <translation>секция (квадратная миля)</translation>
    </message>
    <message>
        <source>township</source>
        <translation>тауншип (36 квадратных миль)</translation>
    </message>
    <message>
        <source>hectare</source>
        <translatorcomment>CLDR: гектар</translatorcomment>
        <translation>гектар</translation>
    </message>
    <message>
        <source>square kilometer</source>
        <translatorcomment>CLDR: квадратный километр</translatorcomment>
        <translation>квадратный километр</translation>
    </message>
    <message>
        <source>square mile</source>
        <translatorcomment>CLDR: квадратная миля</translatorcomment>
        <translation>квадратная миля</translation>
    </message>
    <message>
        <source>square centimeter</source>
        <translatorcomment>CLDR: квадратный сантиметр</translatorcomment>
        <translation>квадратный сантиметр</translation>
    </message>
    <message>
        <source>square millimeter</source>
        <translatorcomment>CLDR: квадратный миллиметр</translatorcomment>
        <translation>квадратный миллиметр</translation>
    </message>
    <message>
        <source>circular mil</source>
        <translation>круговой мил</translation>
    </message>
    <message>
        <source>kilo-circular mil</source>
        <translation>тысяча круговых милов</translation>
    </message>
    <message>
        <source>are</source>
        <translation>ар</translation>
    </message>
    <message>
        <source>barn</source>
        <translation>барн</translation>
    </message>
    <message>
        <source>centare</source>
        <translation>сантиар</translation>
    </message>
    <message>
        <source>square angstrom</source>
        <translation>квадратный ангстрем</translation>
    </message>
    <message>
        <source>square bolt</source>
        <translation>квадратный болт</translation>
    </message>
    <message>
        <source>square cable</source>
        <translation>квадратный кабельтов</translation>
    </message>
    <message>
        <source>square caliber</source>
        <translation>квадратный калибр</translation>
    </message>
    <message>
        <source>square cubit</source>
        <translation>квадратный локоть</translation>
    </message>
    <message>
        <source>square decimeter</source>
        <translatorcomment>CLDR: квадратный дециметр</translatorcomment>
        <translation>квадратный дециметр</translation>
    </message>
    <message>
        <source>square fathom</source>
        <translation>квадратная морская сажень</translation>
    </message>
    <message>
        <source>square furlong</source>
        <translatorcomment>CLDR: квадратный фурлонг</translatorcomment>
        <translation>квадратный фурлонг</translation>
    </message>
    <message>
        <source>square gigameter</source>
        <translatorcomment>CLDR: квадратный гигаметр</translatorcomment>
        <translation>квадратный гигаметр</translation>
    </message>
    <message>
        <source>square hand</source>
        <translation>квадратный хэнд</translation>
    </message>
    <message>
        <source>square nautical league</source>
        <translation>квадратная морская лига</translation>
    </message>
    <message>
        <source>square league (statute)</source>
        <translation>квадратная лига (сухопутная)</translation>
    </message>
    <message>
        <source>square light-year</source>
        <translatorcomment>CLDR: квадратный световой год</translatorcomment>
        <translation>квадратный световой год</translation>
    </message>
    <message>
        <source>square link</source>
        <translation>квадратный линк</translation>
    </message>
    <message>
        <source>square micron</source>
        <translation>квадратный микрон</translation>
    </message>
    <message>
        <source>square mile (UK nautical)</source>
        <translation>квадратная миля (британская морская)</translation>
    </message>
    <message>
        <source>square mile (statute)</source>
        <translation>квадратная миля (уставная)</translation>
    </message>
    <message>
        <source>square millimicron</source>
        <translation>квадратный миллимикрон</translation>
    </message>
    <message>
        <source>square pace</source>
        <translation>квадратный шаг</translation>
    </message>
    <message>
        <source>square palm</source>
        <translation>квадратная ладонь</translation>
    </message>
    <message>
        <source>square parsec</source>
        <translatorcomment>CLDR: квадратный парсек</translatorcomment>
        <translation>квадратный парсек</translation>
    </message>
    <message>
        <source>square perch</source>
        <translation>квадратный перч</translation>
    </message>
    <message>
        <source>square rope</source>
        <translation>квадратный роуп</translation>
    </message>
    <message>
        <source>square skein</source>
        <translation>квадратный моток</translation>
    </message>
    <message>
        <source>square span</source>
        <translation>квадратная пядь</translation>
    </message>
    <message>
        <source>square survey foot</source>
        <translation>квадратный геодезический фут</translation>
    </message>
    <message>
        <source>square chain</source>
        <translation>квадратный чейн</translation>
    </message>
    <message>
        <source>square mil</source>
        <translation>квадратный мил</translation>
    </message>
    <message>
        <source>square astronomical unit</source>
        <translation>квадратная астрономическая единица</translation>
    </message>
    <message>
        <source>survey acre</source>
        <translation>геодезический акр</translation>
    </message>
    <message>
        <source>square survey yard</source>
        <translation>квадратный геодезический ярд</translation>
    </message>
    <message>
        <source>board</source>
        <translation>борд (доска)</translation>
    </message>
    <message>
        <source>cord</source>
        <translation>корд (площадь)</translation>
    </message>
    <message>
        <source>square microinch</source>
        <translation>квадратный микродюйм</translation>
    </message>
    <message>
        <source>square micrometer</source>
        <translatorcomment>CLDR: квадратный микрометр</translatorcomment>
        <translation>квадратный микрометр</translation>
    </message>
    <message>
        <source>liter</source>
        <translatorcomment>CLDR: литр</translatorcomment>
        <translation>литр</translation>
    </message>
    <message>
        <source>cubic centimeter</source>
        <translatorcomment>CLDR: кубический сантиметр</translatorcomment>
        <translation>кубический сантиметр</translation>
    </message>
    <message>
        <source>tablespoon</source>
        <translatorcomment>CLDR: столовая ложка</translatorcomment>
        <translation>столовая ложка</translation>
    </message>
    <message>
        <source>tablespoon (Canadian)</source>
        <translation>столовая ложка (Канада)</translation>
    </message>
    <message>
        <source>tablespoon (U.S.)</source>
        <translation>столовая ложка (США)</translation>
    </message>
    <message>
        <source>fluid ounce (imperial)</source>
        <translation>жидкая унция (британская)</translation>
    </message>
    <message>
        <source>fluid ounce (U.S.)</source>
        <translation>жидкая унция (США)</translation>
    </message>
    <message>
        <source>cup</source>
        <translation>чашка</translation>
    </message>
    <message>
        <source>cup (Canadian)</source>
        <translation>чашка (Канада)</translation>
    </message>
    <message>
        <source>cup (U.S.)</source>
        <translation>чашка (США)</translation>
    </message>
    <message>
        <source>quart (imperial)</source>
        <translation>кварта (британская)</translation>
    </message>
    <message>
        <source>quart (U.S. fluid)</source>
        <translation>кварта (США, жидкая)</translation>
    </message>
    <message>
        <source>quart (U.S. dry)</source>
        <translation>кварта (США, сухая)</translation>
    </message>
    <message>
        <source>gallon (imperial)</source>
        <translation>галлон (британский)</translation>
    </message>
    <message>
        <source>gallon (U.S. fluid; Wine)</source>
        <translation>галлон (США, жидкий; винный)</translation>
    </message>
    <message>
        <source>gallon (U.S. dry)</source>
        <translation>галлон (США, сухой)</translation>
    </message>
    <message>
        <source>beer gallon</source>
        <translation>пивной галлон</translation>
    </message>
    <message>
        <source>bushel (imperial)</source>
        <translation>бушель (британский)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry level)</source>
        <translation>бушель (США, без верха)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry heaped)</source>
        <translation>бушель (США, с верхом)</translation>
    </message>
    <message>
        <source>centiliter</source>
        <translatorcomment>CLDR: сантилитр</translatorcomment>
        <translation>сантилитр</translation>
    </message>
    <message>
        <source>cubic foot</source>
        <translatorcomment>CLDR: кубический фут</translatorcomment>
        <translation>кубический фут</translation>
    </message>
    <message>
        <source>cubic inch</source>
        <translatorcomment>CLDR: кубический дюйм</translatorcomment>
        <translation>кубический дюйм</translation>
    </message>
    <message>
        <source>cubic meter</source>
        <translatorcomment>CLDR: кубический метр</translatorcomment>
        <translation>кубический метр</translation>
    </message>
    <message>
        <source>cubic yard</source>
        <translatorcomment>CLDR: кубический ярд</translatorcomment>
        <translation>кубический ярд</translation>
    </message>
    <message>
        <source>fluid dram</source>
        <translation>жидкая драхма (США)</translation>
    </message>
    <message>
        <source>microliter</source>
        <translatorcomment>CLDR: микролитр</translatorcomment>
        <translation>микролитр</translation>
    </message>
    <message>
        <source>milliliter</source>
        <translatorcomment>CLDR: миллилитр</translatorcomment>
        <translation>миллилитр</translation>
    </message>
    <message>
        <source>pint (imperial)</source>
        <translation>пинта (британская)</translation>
    </message>
    <message>
        <source>pint (U.S. fluid)</source>
        <translation>пинта (США, жидкая)</translation>
    </message>
    <message>
        <source>pint (U.S. dry)</source>
        <translation>пинта (США, сухая)</translation>
    </message>
    <message>
        <source>teaspoon</source>
        <translatorcomment>CLDR: чайная ложка</translatorcomment>
        <translation>чайная ложка</translation>
    </message>
    <message>
        <source>teaspoon (Canadian)</source>
        <translation>чайная ложка (Канада)</translation>
    </message>
    <message>
        <source>teaspoon (U.S.)</source>
        <translation>чайная ложка (США)</translation>
    </message>
    <message>
        <source>teaspoon (imperial)</source>
        <translation>чайная ложка (британская)</translation>
    </message>
    <message>
        <source>cubic millimeter</source>
        <translatorcomment>CLDR: кубический миллиметр</translatorcomment>
        <translation>кубический миллиметр</translation>
    </message>
    <message>
        <source>barrel (imperial)</source>
        <translation>баррель (британский)</translation>
    </message>
    <message>
        <source>barrel (petroleum)</source>
        <translation>баррель (нефтяной)</translation>
    </message>
    <message>
        <source>barrel (U.S. dry)</source>
        <translation>баррель (США, сухой)</translation>
    </message>
    <message>
        <source>barrel (U.S. fluid)</source>
        <translation>баррель (США, жидкий)</translation>
    </message>
    <message>
        <source>board-foot</source>
        <translation>досковый фут</translation>
    </message>
    <message>
        <source>decistere</source>
        <translation>децистер</translation>
    </message>
    <message>
        <source>dekaliter</source>
        <translatorcomment>CLDR: декалитр</translatorcomment>
        <translation>декалитр</translation>
    </message>
    <message>
        <source>dekastere</source>
        <translation>декастер</translation>
    </message>
    <message>
        <source>dram</source>
        <translatorcomment>CLDR: жидкая драхма</translatorcomment>
        <translation>жидкая драхма</translation>
    </message>
    <message>
        <source>firkin</source>
        <translation>фиркин</translation>
    </message>
    <message>
        <source>cubic angstrom</source>
        <translation>кубический ангстрем</translation>
    </message>
    <message>
        <source>cubic astronomical unit</source>
        <translation>кубическая астрономическая единица</translation>
    </message>
    <message>
        <source>cubic bolt</source>
        <translation>кубический болт</translation>
    </message>
    <message>
        <source>cubic cable</source>
        <translation>кубический кабельтов</translation>
    </message>
    <message>
        <source>cubic caliber</source>
        <translation>кубический калибр</translation>
    </message>
    <message>
        <source>cubic chain</source>
        <translation>кубический чейн</translation>
    </message>
    <message>
        <source>cubic cubit</source>
        <translation>кубический локоть</translation>
    </message>
    <message>
        <source>cubic fathom</source>
        <translation>кубическая морская сажень</translation>
    </message>
    <message>
        <source>cubic furlong</source>
        <translatorcomment>CLDR: кубический фурлонг</translatorcomment>
        <translation>кубический фурлонг</translation>
    </message>
    <message>
        <source>cubic gigameter</source>
        <translatorcomment>CLDR: кубический гигаметр</translatorcomment>
        <translation>кубический гигаметр</translation>
    </message>
    <message>
        <source>cubic hand</source>
        <translation>кубический хэнд</translation>
    </message>
    <message>
        <source>cubic hectometer</source>
        <translatorcomment>CLDR: кубический гектометр</translatorcomment>
        <translation>кубический гектометр</translation>
    </message>
    <message>
        <source>cubic nautical league</source>
        <translation>кубическая морская лига</translation>
    </message>
    <message>
        <source>cubic league (statute)</source>
        <translation>кубическая лига (сухопутная)</translation>
    </message>
    <message>
        <source>cubic light-year</source>
        <translatorcomment>CLDR: кубический световой год</translatorcomment>
        <translation>кубический световой год</translation>
    </message>
    <message>
        <source>cubic link</source>
        <translation>кубический линк</translation>
    </message>
    <message>
        <source>cubic mil</source>
        <translation>кубический мил</translation>
    </message>
    <message>
        <source>cubic mile (UK nautical)</source>
        <translation>кубическая миля (британская морская)</translation>
    </message>
    <message>
        <source>cubic mile</source>
        <translatorcomment>CLDR: кубическая миля</translatorcomment>
        <translation>кубическая миля</translation>
    </message>
    <message>
        <source>cubic nautical mile</source>
        <translation>кубическая морская миля</translation>
    </message>
    <message>
        <source>cubic mile (statute)</source>
        <translation>кубическая миля (уставная)</translation>
    </message>
    <message>
        <source>cubic millimicron</source>
        <translation>кубический миллимикрон</translation>
    </message>
    <message>
        <source>cubic pace</source>
        <translation>кубический шаг</translation>
    </message>
    <message>
        <source>cubic palm</source>
        <translation>кубическая ладонь</translation>
    </message>
    <message>
        <source>cubic parsec</source>
        <translatorcomment>CLDR: кубический парсек</translatorcomment>
        <translation>кубический парсек</translation>
    </message>
    <message>
        <source>cubic perch</source>
        <translation>кубический перч</translation>
    </message>
    <message>
        <source>cubic rope</source>
        <translation>кубический роуп</translation>
    </message>
    <message>
        <source>cubic skein</source>
        <translation>кубический моток</translation>
    </message>
    <message>
        <source>cubic span</source>
        <translation>кубическая пядь</translation>
    </message>
    <message>
        <source>cubic survey foot</source>
        <translation>кубический геодезический фут</translation>
    </message>
    <message>
        <source>cubic decimeter</source>
        <translatorcomment>CLDR: кубический дециметр</translatorcomment>
        <translation>кубический дециметр</translation>
    </message>
    <message>
        <source>tun</source>
        <translation>тун (бочка)</translation>
    </message>
    <message>
        <source>peck</source>
        <translation>пек</translation>
    </message>
    <message>
        <source>peck (U.S. dry)</source>
        <translation>пек (США, сухой)</translation>
    </message>
    <message>
        <source>peck (imperial)</source>
        <translation>пек (британский)</translation>
    </message>
    <message>
        <source>minim (imperial)</source>
        <translation>миним (британский)</translation>
    </message>
    <message>
        <source>minim (U.S.)</source>
        <translation>миним (США)</translation>
    </message>
    <message>
        <source>kiloliter</source>
        <translatorcomment>CLDR: килолитр</translatorcomment>
        <translation>килолитр</translation>
    </message>
    <message>
        <source>hogshead (U.S.)</source>
        <translation>хогсхед (США)</translation>
    </message>
    <message>
        <source>hogshead (imperial)</source>
        <translation>хогсхед (британский)</translation>
    </message>
    <message>
        <source>gill (imperial)</source>
        <translation>джилл (британский)</translation>
    </message>
    <message>
        <source>gill (U.S.)</source>
        <translation>джилл (США)</translation>
    </message>
    <message>
        <source>cubic survey yard</source>
        <translation>кубический геодезический ярд</translation>
    </message>
    <message>
        <source>cord-foot</source>
        <translation>корд-фут</translation>
    </message>
    <message>
        <source>cord (firewood)</source>
        <translation>корд (дрова)</translation>
    </message>
    <message>
        <source>register ton</source>
        <translation>регистровая тонна</translation>
    </message>
    <message>
        <source>acre-foot</source>
        <translatorcomment>CLDR: акрофут</translatorcomment>
        <translation>акрофут</translation>
    </message>
    <message>
        <source>acre-inch</source>
        <translation>акр-дюйм</translation>
    </message>
    <message>
        <source>cubic microinch</source>
        <translation>кубический микродюйм</translation>
    </message>
    <message>
        <source>cubic micrometer</source>
        <translatorcomment>CLDR: кубический микрометр</translatorcomment>
        <translation>кубический микрометр</translation>
    </message>
    <message>
        <source>cubic kilometer</source>
        <translatorcomment>CLDR: кубический километр</translatorcomment>
        <translation>кубический километр</translation>
    </message>
    <message>
        <source>kilogram</source>
        <translatorcomment>CLDR: килограмм</translatorcomment>
        <translation>килограмм</translation>
    </message>
    <message>
        <source>gram</source>
        <translatorcomment>CLDR: грамм</translatorcomment>
        <translation>грамм</translation>
    </message>
    <message>
        <source>yottagram</source>
        <translatorcomment>CLDR: иоттаграмм</translatorcomment>
        <translation>иоттаграмм</translation>
    </message>
    <message>
        <source>zettagram</source>
        <translatorcomment>CLDR: зеттаграмм</translatorcomment>
        <translation>зеттаграмм</translation>
    </message>
    <message>
        <source>exagram</source>
        <translatorcomment>CLDR: эксаграмм</translatorcomment>
        <translation>эксаграмм</translation>
    </message>
    <message>
        <source>petagram</source>
        <translatorcomment>CLDR: петаграмм</translatorcomment>
        <translation>петаграмм</translation>
    </message>
    <message>
        <source>teragram</source>
        <translatorcomment>CLDR: тераграмм</translatorcomment>
        <translation>тераграмм</translation>
    </message>
    <message>
        <source>gigagram</source>
        <translatorcomment>CLDR: гигаграмм</translatorcomment>
        <translation>гигаграмм</translation>
    </message>
    <message>
        <source>megagram</source>
        <translatorcomment>CLDR: мегаграмм</translatorcomment>
        <translation>мегаграмм</translation>
    </message>
    <message>
        <source>hectogram</source>
        <translatorcomment>CLDR: гектограмм</translatorcomment>
        <translation>гектограмм</translation>
    </message>
    <message>
        <source>decagram</source>
        <translatorcomment>CLDR: декаграмм</translatorcomment>
        <translation>декаграмм</translation>
    </message>
    <message>
        <source>decigram</source>
        <translatorcomment>CLDR: дециграмм</translatorcomment>
        <translation>дециграмм</translation>
    </message>
    <message>
        <source>centigram</source>
        <translatorcomment>CLDR: сантиграмм</translatorcomment>
        <translation>сантиграмм</translation>
    </message>
    <message>
        <source>milligram</source>
        <translatorcomment>CLDR: миллиграмм</translatorcomment>
        <translation>миллиграмм</translation>
    </message>
    <message>
        <source>microgram</source>
        <translatorcomment>CLDR: микрограмм</translatorcomment>
        <translation>микрограмм</translation>
    </message>
    <message>
        <source>nanogram</source>
        <translatorcomment>CLDR: нанограмм</translatorcomment>
        <translation>нанограмм</translation>
    </message>
    <message>
        <source>picogram</source>
        <translatorcomment>CLDR: пикограмм</translatorcomment>
        <translation>пикограмм</translation>
    </message>
    <message>
        <source>femtogram</source>
        <translatorcomment>CLDR: фемтограмм</translatorcomment>
        <translation>фемтограмм</translation>
    </message>
    <message>
        <source>attogram</source>
        <translatorcomment>CLDR: аттограмм</translatorcomment>
        <translation>аттограмм</translation>
    </message>
    <message>
        <source>zeptogram</source>
        <translatorcomment>CLDR: зептограмм</translatorcomment>
        <translation>зептограмм</translation>
    </message>
    <message>
        <source>yoctogram</source>
        <translatorcomment>CLDR: иоктограмм</translatorcomment>
        <translation>иоктограмм</translation>
    </message>
    <message>
        <source>pound (meter)</source>
        <translation>метрический фунт</translation>
    </message>
    <message>
        <source>pound</source>
        <translatorcomment>CLDR: фунт</translatorcomment>
        <translation>фунт</translation>
    </message>
    <message>
        <source>pound (troy)</source>
        <translation>тройский фунт</translation>
    </message>
    <message>
        <source>ounce (avoirdupois)</source>
        <translation>унция (эвердьюпойс)</translation>
    </message>
    <message>
        <source>ounce (apothecary; troy)</source>
        <translation>унция (аптекарская; тройская)</translation>
    </message>
    <message>
        <source>stone</source>
        <translatorcomment>CLDR: стоун</translatorcomment>
        <translation>стоун</translation>
    </message>
    <message>
        <source>short ton</source>
        <translation>короткая тонна</translation>
    </message>
    <message>
        <source>long ton</source>
        <translation>длинная тонна</translation>
    </message>
    <message>
        <source>carat</source>
        <translatorcomment>CLDR: карат</translatorcomment>
        <translation>карат</translation>
    </message>
    <message>
        <source>carat (metric)</source>
        <translation>карат (метрический)</translation>
    </message>
    <message>
        <source>dram (avoirdupois)</source>
        <translation>драхма (эвердьюпойс)</translation>
    </message>
    <message>
        <source>dram (apothecary; troy)</source>
        <translation>драхма (аптекарская; тройская)</translation>
    </message>
    <message>
        <source>pennyweight</source>
        <translation>пеннивейт</translation>
    </message>
    <message>
        <source>tael</source>
        <translation>таэль</translation>
    </message>
    <message>
        <source>tola</source>
        <translation>тола</translation>
    </message>
    <message>
        <source>long hundredweight</source>
        <translation>длинный хандредвейт</translation>
    </message>
    <message>
        <source>short hundredweight</source>
        <translation>короткий хандредвейт</translation>
    </message>
    <message>
        <source>grain</source>
        <translatorcomment>CLDR: гран</translatorcomment>
        <translation>гран</translation>
    </message>
    <message>
        <source>pearl grain</source>
        <translation>жемчужный гран</translation>
    </message>
    <message>
        <source>dalton</source>
        <translatorcomment>CLDR: дальтон</translatorcomment>
        <translation>дальтон</translation>
    </message>
    <message>
        <source>kilodalton</source>
        <translatorcomment>CLDR: килодальтон</translatorcomment>
        <translation>килодальтон</translation>
    </message>
    <message>
        <source>slug</source>
        <translation>слаг</translation>
    </message>
    <message>
        <source>kilogram per meter</source>
        <translatorcomment>CLDR: килограмм на метр</translatorcomment>
        <translation>килограмм на метр</translation>
    </message>
    <message>
        <source>pound per foot</source>
        <translatorcomment>CLDR: фунт на фут</translatorcomment>
        <translation>фунт на фут</translation>
    </message>
    <message>
        <source>mole</source>
        <translatorcomment>CLDR: моль</translatorcomment>
        <translation>моль</translation>
    </message>
    <message>
        <source>yottamole</source>
        <translatorcomment>CLDR: иоттамоль</translatorcomment>
        <translation>иоттамоль</translation>
    </message>
    <message>
        <source>zettamole</source>
        <translatorcomment>CLDR: зеттамоль</translatorcomment>
        <translation>зеттамоль</translation>
    </message>
    <message>
        <source>examole</source>
        <translatorcomment>CLDR: эксамоль</translatorcomment>
        <translation>эксамоль</translation>
    </message>
    <message>
        <source>petamole</source>
        <translatorcomment>CLDR: петамоль</translatorcomment>
        <translation>петамоль</translation>
    </message>
    <message>
        <source>teramole</source>
        <translatorcomment>CLDR: терамоль</translatorcomment>
        <translation>терамоль</translation>
    </message>
    <message>
        <source>gigamole</source>
        <translatorcomment>CLDR: гигамоль</translatorcomment>
        <translation>гигамоль</translation>
    </message>
    <message>
        <source>megamole</source>
        <translatorcomment>CLDR: мегамоль</translatorcomment>
        <translation>мегамоль</translation>
    </message>
    <message>
        <source>kilomole</source>
        <translatorcomment>CLDR: киломоль</translatorcomment>
        <translation>киломоль</translation>
    </message>
    <message>
        <source>hectomole</source>
        <translatorcomment>CLDR: гектомоль</translatorcomment>
        <translation>гектомоль</translation>
    </message>
    <message>
        <source>decamole</source>
        <translatorcomment>CLDR: декамоль</translatorcomment>
        <translation>декамоль</translation>
    </message>
    <message>
        <source>decimole</source>
        <translatorcomment>CLDR: децимоль</translatorcomment>
        <translation>децимоль</translation>
    </message>
    <message>
        <source>centimole</source>
        <translatorcomment>CLDR: сантимоль</translatorcomment>
        <translation>сантимоль</translation>
    </message>
    <message>
        <source>millimole</source>
        <translatorcomment>CLDR: миллимоль</translatorcomment>
        <translation>миллимоль</translation>
    </message>
    <message>
        <source>micromole</source>
        <translatorcomment>CLDR: микромоль</translatorcomment>
        <translation>микромоль</translation>
    </message>
    <message>
        <source>nanomole</source>
        <translatorcomment>CLDR: наномоль</translatorcomment>
        <translation>наномоль</translation>
    </message>
    <message>
        <source>picomole</source>
        <translatorcomment>CLDR: пикомоль</translatorcomment>
        <translation>пикомоль</translation>
    </message>
    <message>
        <source>femtomole</source>
        <translatorcomment>CLDR: фемтомоль</translatorcomment>
        <translation>фемтомоль</translation>
    </message>
    <message>
        <source>attomole</source>
        <translatorcomment>CLDR: аттомоль</translatorcomment>
        <translation>аттомоль</translation>
    </message>
    <message>
        <source>zeptomole</source>
        <translatorcomment>CLDR: зептомоль</translatorcomment>
        <translation>зептомоль</translation>
    </message>
    <message>
        <source>yoctomole</source>
        <translatorcomment>CLDR: иоктомоль</translatorcomment>
        <translation>иоктомоль</translation>
    </message>
    <message>
        <source>radian</source>
        <translatorcomment>CLDR: радиан</translatorcomment>
        <translation>радиан</translation>
    </message>
    <message>
        <source>degree</source>
        <translatorcomment>CLDR: градус</translatorcomment>
        <translation>градус</translation>
    </message>
    <message>
        <source>milliradian</source>
        <translatorcomment>CLDR: миллирадиан</translatorcomment>
        <translation>миллирадиан</translation>
    </message>
    <message>
        <source>grad</source>
        <translation>град (гон)</translation>
    </message>
    <message>
        <source>angular mil (NATO)</source>
        <translation>тысячная (НАТО)</translation>
    </message>
    <message>
        <source>angular mil (Sweden)</source>
        <translation>тысячная (Швеция)</translation>
    </message>
    <message>
        <source>angular mil (USSR)</source>
        <translation>тысячная (СССР)</translation>
    </message>
    <message>
        <source>angle minute</source>
        <translation>угловая минута</translation>
    </message>
    <message>
        <source>angle second</source>
        <translation>угловая секунда</translation>
    </message>
    <message>
        <source>milliarc second</source>
        <translation>угловая миллисекунда</translation>
    </message>
    <message>
        <source>steradian</source>
        <translation>стерадиан</translation>
    </message>
    <message>
        <source>gram per square meter</source>
        <translatorcomment>CLDR: грамм на квадратный метр</translatorcomment>
        <translation>грамм на квадратный метр</translation>
    </message>
    <message>
        <source>gram per square inch</source>
        <translatorcomment>CLDR: грамм на квадратный дюйм</translatorcomment>
        <translation>грамм на квадратный дюйм</translation>
    </message>
    <message>
        <source>nanogram per liter</source>
        <translatorcomment>CLDR: нанограмм на литр</translatorcomment>
        <translation>нанограмм на литр</translation>
    </message>
    <message>
        <source>nanogram per deciliter</source>
        <translatorcomment>CLDR: нанограмм/децилитр</translatorcomment>
        <translation>нанограмм/децилитр</translation>
    </message>
    <message>
        <source>nanogram per milliliter</source>
        <translatorcomment>CLDR: нанограмм/миллилитр</translatorcomment>
        <translation>нанограмм/миллилитр</translation>
    </message>
    <message>
        <source>nanogram per microliter</source>
        <translatorcomment>CLDR: нанограмм/микролитр</translatorcomment>
        <translation>нанограмм/микролитр</translation>
    </message>
    <message>
        <source>part per million</source>
        <translatorcomment>CLDR: миллионная доля</translatorcomment>
        <translation>миллионная доля</translation>
    </message>
    <message>
        <source>part per billion</source>
        <translation>миллиардная доля</translation>
    </message>
    <message>
        <source>ampere</source>
        <translatorcomment>CLDR: ампер</translatorcomment>
        <translation>ампер</translation>
    </message>
    <message>
        <source>yottaampere</source>
        <translatorcomment>CLDR: иоттаампер</translatorcomment>
        <translation>иоттаампер</translation>
    </message>
    <message>
        <source>zettaampere</source>
        <translatorcomment>CLDR: зеттаампер</translatorcomment>
        <translation>зеттаампер</translation>
    </message>
    <message>
        <source>exaampere</source>
        <translatorcomment>CLDR: эксаампер</translatorcomment>
        <translation>эксаампер</translation>
    </message>
    <message>
        <source>petaampere</source>
        <translatorcomment>CLDR: петаампер</translatorcomment>
        <translation>петаампер</translation>
    </message>
    <message>
        <source>teraampere</source>
        <translatorcomment>CLDR: тераампер</translatorcomment>
        <translation>тераампер</translation>
    </message>
    <message>
        <source>gigaampere</source>
        <translatorcomment>CLDR: гигаампер</translatorcomment>
        <translation>гигаампер</translation>
    </message>
    <message>
        <source>megaampere</source>
        <translatorcomment>CLDR: мегаампер</translatorcomment>
        <translation>мегаампер</translation>
    </message>
    <message>
        <source>kiloampere</source>
        <translatorcomment>CLDR: килоампер</translatorcomment>
        <translation>килоампер</translation>
    </message>
    <message>
        <source>hectoampere</source>
        <translatorcomment>CLDR: гектоампер</translatorcomment>
        <translation>гектоампер</translation>
    </message>
    <message>
        <source>decaampere</source>
        <translatorcomment>CLDR: декаампер</translatorcomment>
        <translation>декаампер</translation>
    </message>
    <message>
        <source>deciampere</source>
        <translatorcomment>CLDR: дециампер</translatorcomment>
        <translation>дециампер</translation>
    </message>
    <message>
        <source>centiampere</source>
        <translatorcomment>CLDR: сантиампер</translatorcomment>
        <translation>сантиампер</translation>
    </message>
    <message>
        <source>milliampere</source>
        <translatorcomment>CLDR: миллиампер</translatorcomment>
        <translation>миллиампер</translation>
    </message>
    <message>
        <source>microampere</source>
        <translatorcomment>CLDR: микроампер</translatorcomment>
        <translation>микроампер</translation>
    </message>
    <message>
        <source>nanoampere</source>
        <translatorcomment>CLDR: наноампер</translatorcomment>
        <translation>наноампер</translation>
    </message>
    <message>
        <source>picoampere</source>
        <translatorcomment>CLDR: пикоампер</translatorcomment>
        <translation>пикоампер</translation>
    </message>
    <message>
        <source>femtoampere</source>
        <translatorcomment>CLDR: фемтоампер</translatorcomment>
        <translation>фемтоампер</translation>
    </message>
    <message>
        <source>attoampere</source>
        <translatorcomment>CLDR: аттоампер</translatorcomment>
        <translation>аттоампер</translation>
    </message>
    <message>
        <source>zeptoampere</source>
        <translatorcomment>CLDR: зептоампер</translatorcomment>
        <translation>зептоампер</translation>
    </message>
    <message>
        <source>yoctoampere</source>
        <translatorcomment>CLDR: иоктоампер</translatorcomment>
        <translation>иоктоампер</translation>
    </message>
    <message>
        <source>coulomb</source>
        <translation>кулон</translation>
    </message>
    <message>
        <source>ampere hour</source>
        <translation>ампер-час</translation>
    </message>
    <message>
        <source>milliampere hour</source>
        <translation>миллиампер-час</translation>
    </message>
    <message>
        <source>faraday</source>
        <translation>фарадей</translation>
    </message>
    <message>
        <source>farad</source>
        <translation>фарад</translation>
    </message>
    <message>
        <source>yottafarad</source>
        <translation>йоттафарад</translation>
    </message>
    <message>
        <source>zettafarad</source>
        <translation>зеттафарад</translation>
    </message>
    <message>
        <source>exafarad</source>
        <translation>эксафарад</translation>
    </message>
    <message>
        <source>petafarad</source>
        <translation>петафарад</translation>
    </message>
    <message>
        <source>terafarad</source>
        <translation>терафарад</translation>
    </message>
    <message>
        <source>gigafarad</source>
        <translation>гигафарад</translation>
    </message>
    <message>
        <source>megafarad</source>
        <translation>мегафарад</translation>
    </message>
    <message>
        <source>kilofarad</source>
        <translation>килофарад</translation>
    </message>
    <message>
        <source>hectofarad</source>
        <translation>гектофарад</translation>
    </message>
    <message>
        <source>decafarad</source>
        <translation>декафарад</translation>
    </message>
    <message>
        <source>decifarad</source>
        <translation>децифарад</translation>
    </message>
    <message>
        <source>centifarad</source>
        <translation>сантифарад</translation>
    </message>
    <message>
        <source>millifarad</source>
        <translation>миллифарад</translation>
    </message>
    <message>
        <source>microfarad</source>
        <translation>микрофарад</translation>
    </message>
    <message>
        <source>nanofarad</source>
        <translation>нанофарад</translation>
    </message>
    <message>
        <source>picofarad</source>
        <translation>пикофарад</translation>
    </message>
    <message>
        <source>femtofarad</source>
        <translation>фемтофарад</translation>
    </message>
    <message>
        <source>attofarad</source>
        <translation>аттофарад</translation>
    </message>
    <message>
        <source>zeptofarad</source>
        <translation>зептофарад</translation>
    </message>
    <message>
        <source>yoctofarad</source>
        <translation>йоктофарад</translation>
    </message>
    <message>
        <source>kilopicofarad</source>
        <translation>килопикофарад</translation>
    </message>
    <message>
        <source>baud</source>
        <translation>бод</translation>
    </message>
    <message>
        <source>bit per second</source>
        <translatorcomment>CLDR: бит в секунду</translatorcomment>
        <translation>бит в секунду</translation>
    </message>
    <message>
        <source>byte per second</source>
        <translatorcomment>CLDR: байт в секунду</translatorcomment>
        <translation>байт в секунду</translation>
    </message>
    <message>
        <source>kilobaud</source>
        <translation>килобод</translation>
    </message>
    <message>
        <source>kilobit per second</source>
        <translatorcomment>CLDR: килобит в секунду</translatorcomment>
        <translation>килобит в секунду</translation>
    </message>
    <message>
        <source>kilobyte per second</source>
        <translatorcomment>CLDR: килобайт в секунду</translatorcomment>
        <translation>килобайт в секунду</translation>
    </message>
    <message>
        <source>megabaud</source>
        <translation>мегабод</translation>
    </message>
    <message>
        <source>megabit per second</source>
        <translatorcomment>CLDR: мегабит в секунду</translatorcomment>
        <translation>мегабит в секунду</translation>
    </message>
    <message>
        <source>megabyte per second</source>
        <translatorcomment>CLDR: мегабайт в секунду</translatorcomment>
        <translation>мегабайт в секунду</translation>
    </message>
    <message>
        <source>kilogram per cubic meter</source>
        <translatorcomment>CLDR: килограмм на кубический метр</translatorcomment>
        <translation>килограмм на кубический метр</translation>
    </message>
    <message>
        <source>kilogram per liter</source>
        <translatorcomment>CLDR: килограмм на литр</translatorcomment>
        <translation>килограмм на литр</translation>
    </message>
    <message>
        <source>gram per liter</source>
        <translatorcomment>CLDR: грамм на литр</translatorcomment>
        <translation>грамм на литр</translation>
    </message>
    <message>
        <source>microgram per milliliter</source>
        <translatorcomment>CLDR: микрограмм/миллилитр</translatorcomment>
        <translation>микрограмм/миллилитр</translation>
    </message>
    <message>
        <source>milligram per milliliter</source>
        <translatorcomment>CLDR: миллиграмм/миллилитр</translatorcomment>
        <translation>миллиграмм/миллилитр</translation>
    </message>
    <message>
        <source>pound per gallon</source>
        <translatorcomment>CLDR: фунт на амер. галлон</translatorcomment>
        <translation>фунт на амер. галлон</translation>
    </message>
    <message>
        <source>ounce per gallon</source>
        <translatorcomment>CLDR: унция на амер. галлон</translatorcomment>
        <translation>унция на амер. галлон</translation>
    </message>
    <message>
        <source>pound per cubic foot</source>
        <translatorcomment>CLDR: фунт/кубический фут</translatorcomment>
        <translation>фунт/кубический фут</translation>
    </message>
    <message>
        <source>pound per cubic inch</source>
        <translatorcomment>CLDR: фунт/кубический дюйм</translatorcomment>
        <translation>фунт/кубический дюйм</translation>
    </message>
    <message>
        <source>gram per cubic centimeter</source>
        <translatorcomment>CLDR: грамм на кубический сантиметр</translatorcomment>
        <translation>грамм на кубический сантиметр</translation>
    </message>
    <message>
        <source>newton square second per quartic millimeter</source>
        <translation>ньютон-секунда в квадрате на миллиметр в четвёртой степени</translation>
    </message>
    <message>
        <source>newton per cubic meter</source>
        <translatorcomment>CLDR: ньютон на кубический метр</translatorcomment>
        <translation>ньютон на кубический метр</translation>
    </message>
    <message>
        <source>kilonewton per cubic meter</source>
        <translatorcomment>CLDR: килоньютон на кубический метр</translatorcomment>
        <translation>килоньютон на кубический метр</translation>
    </message>
    <message>
        <source>pound force per cubic foot</source>
        <translation>фунт-сила на кубический фут</translation>
    </message>
    <message>
        <source>kip per cubic inch</source>
        <translation>кип на кубический дюйм</translation>
    </message>
    <message>
        <source>kip per cubic foot</source>
        <translation>кип на кубический фут</translation>
    </message>
    <message>
        <source>joule</source>
        <translatorcomment>CLDR: джоуль</translatorcomment>
        <translation>джоуль</translation>
    </message>
    <message>
        <source>calorie</source>
        <translatorcomment>CLDR: калория</translatorcomment>
        <translation>калория</translation>
    </message>
    <message>
        <source>kilocalorie</source>
        <translatorcomment>CLDR: килокалория</translatorcomment>
        <translation>килокалория</translation>
    </message>
    <message>
        <source>British thermal unit (thermochemical)</source>
        <translation>британская тепловая единица (термохимическая)</translation>
    </message>
    <message>
        <source>British thermal unit (ISO)</source>
        <translation>британская тепловая единица (ISO)</translation>
    </message>
    <message>
        <source>British thermal unit (63 degree F)</source>
        <translation>британская тепловая единица (63 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (60 degree F)</source>
        <translation>британская тепловая единица (60 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (59 degree F)</source>
        <translation>британская тепловая единица (59 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (International Table)</source>
        <translation>британская тепловая единица (международная)</translation>
    </message>
    <message>
        <source>British thermal unit (mean)</source>
        <translation>британская тепловая единица (средняя)</translation>
    </message>
    <message>
        <source>British thermal unit (39 degree F)</source>
        <translation>британская тепловая единица (39 °F)</translation>
    </message>
    <message>
        <source>kiloelectronvolt</source>
        <translatorcomment>CLDR: килоэлектронвольт</translatorcomment>
        <translation>килоэлектронвольт</translation>
    </message>
    <message>
        <source>megaelectronvolt</source>
        <translatorcomment>CLDR: мегаэлектронвольт</translatorcomment>
        <translation>мегаэлектронвольт</translation>
    </message>
    <message>
        <source>electronvolt</source>
        <translatorcomment>CLDR: электронвольт</translatorcomment>
        <translation>электронвольт</translation>
    </message>
    <message>
        <source>erg</source>
        <translation>эрг</translation>
    </message>
    <message>
        <source>kilowatt hour</source>
        <translatorcomment>CLDR: киловатт-час</translatorcomment>
        <translation>киловатт-час</translation>
    </message>
    <message>
        <source>kilowatt minute</source>
        <translation>киловатт-минута</translation>
    </message>
    <message>
        <source>kilowatt second</source>
        <translation>киловатт-секунда</translation>
    </message>
    <message>
        <source>therm (U.S.)</source>
        <translation>терм (США)</translation>
    </message>
    <message>
        <source>newton meter</source>
        <translatorcomment>CLDR: ньютон-метр</translatorcomment>
        <translation>ньютон-метр</translation>
    </message>
    <message>
        <source>decanewton meter</source>
        <translatorcomment>CLDR: деканьютон-метр</translatorcomment>
        <translation>деканьютон-метр</translation>
    </message>
    <message>
        <source>kilonewton meter</source>
        <translatorcomment>CLDR: килоньютон-метр</translatorcomment>
        <translation>килоньютон-метр</translation>
    </message>
    <message>
        <source>meganewton meter</source>
        <translatorcomment>CLDR: меганьютон-метр</translatorcomment>
        <translation>меганьютон-метр</translation>
    </message>
    <message>
        <source>kilogram force meter</source>
        <translation>килограмм-сила-метр</translation>
    </message>
    <message>
        <source>kilogram force foot</source>
        <translation>килограмм-сила-фут</translation>
    </message>
    <message>
        <source>ton force foot</source>
        <translation>тонна-сила-фут</translation>
    </message>
    <message>
        <source>ton force meter</source>
        <translation>тонна-сила-метр</translation>
    </message>
    <message>
        <source>foot kilopound</source>
        <translation>фут-килофунт</translation>
    </message>
    <message>
        <source>foot pound force</source>
        <translation>фут-фунт-сила</translation>
    </message>
    <message>
        <source>calorie (20 degree C)</source>
        <translation>калория (20 °C)</translation>
    </message>
    <message>
        <source>calorie (thermochemical)</source>
        <translation>калория (термохимическая)</translation>
    </message>
    <message>
        <source>calorie (15 degree C)</source>
        <translation>калория (15 °C)</translation>
    </message>
    <message>
        <source>calorie (mean)</source>
        <translation>калория (средняя)</translation>
    </message>
    <message>
        <source>calorie (3.98 degree C)</source>
        <translation>калория (3,98 °C)</translation>
    </message>
    <message>
        <source>Therm (EC)</source>
        <translation>терм (ЕС)</translation>
    </message>
    <message>
        <source>cubic meter per second</source>
        <translatorcomment>CLDR: кубический метр в секунду</translatorcomment>
        <translation>кубический метр в секунду</translation>
    </message>
    <message>
        <source>liter per second</source>
        <translatorcomment>CLDR: литр в секунду</translatorcomment>
        <translation>литр в секунду</translation>
    </message>
    <message>
        <source>liter per minute</source>
        <translatorcomment>CLDR: литр в минуту</translatorcomment>
        <translation>литр в минуту</translation>
    </message>
    <message>
        <source>liter per hour</source>
        <translatorcomment>CLDR: литр в час</translatorcomment>
        <translation>литр в час</translation>
    </message>
    <message>
        <source>gallon per second</source>
        <translatorcomment>CLDR: амер. галлон в секунду</translatorcomment>
        <translation>амер. галлон в секунду</translation>
    </message>
    <message>
        <source>gallon per minute</source>
        <translatorcomment>CLDR: амер. галлон в минуту</translatorcomment>
        <translation>амер. галлон в минуту</translation>
    </message>
    <message>
        <source>gallon per hour</source>
        <translatorcomment>CLDR: амер. галлон в час</translatorcomment>
        <translation>амер. галлон в час</translation>
    </message>
    <message>
        <source>gallon per day</source>
        <translatorcomment>CLDR: амер. галлон в день</translatorcomment>
        <translation>амер. галлон в день</translation>
    </message>
    <message>
        <source>milliliter per minute</source>
        <translatorcomment>CLDR: миллилитр в минуту</translatorcomment>
        <translation>миллилитр в минуту</translation>
    </message>
    <message>
        <source>cubic centimeter per minute</source>
        <translatorcomment>CLDR: кубический сантиметр в минуту</translatorcomment>
        <translation>кубический сантиметр в минуту</translation>
    </message>
    <message>
        <source>cubic foot per hour</source>
        <translatorcomment>CLDR: кубический фут в час</translatorcomment>
        <translation>кубический фут в час</translation>
    </message>
    <message>
        <source>cubic foot per minute</source>
        <translatorcomment>CLDR: кубический фут в минуту</translatorcomment>
        <translation>кубический фут в минуту</translation>
    </message>
    <message>
        <source>cubic foot per second</source>
        <translatorcomment>CLDR: кубический фут в секунду</translatorcomment>
        <translation>кубический фут в секунду</translation>
    </message>
    <message>
        <source>cubic inch per minute</source>
        <translatorcomment>CLDR: кубический дюйм в минуту</translatorcomment>
        <translation>кубический дюйм в минуту</translation>
    </message>
    <message>
        <source>cubic meter per hour</source>
        <translatorcomment>CLDR: кубический метр в час</translatorcomment>
        <translation>кубический метр в час</translation>
    </message>
    <message>
        <source>cubic meter per minute</source>
        <translatorcomment>CLDR: кубический метр в минуту</translatorcomment>
        <translation>кубический метр в минуту</translation>
    </message>
    <message>
        <source>cubic centimeter per second</source>
        <translatorcomment>CLDR: кубический сантиметр в секунду</translatorcomment>
        <translation>кубический сантиметр в секунду</translation>
    </message>
    <message>
        <source>cubic centimeter per hour</source>
        <translatorcomment>CLDR: кубический сантиметр в час</translatorcomment>
        <translation>кубический сантиметр в час</translation>
    </message>
    <message>
        <source>US gallon per hour</source>
        <translation>американский галлон в час</translation>
    </message>
    <message>
        <source>US gallon per second</source>
        <translation>американский галлон в секунду</translation>
    </message>
    <message>
        <source>Imp gallon per day</source>
        <translation>британский галлон в сутки</translation>
    </message>
    <message>
        <source>Imp gallon per hour</source>
        <translation>британский галлон в час</translation>
    </message>
    <message>
        <source>Imp gallon per minute</source>
        <translation>британский галлон в минуту</translation>
    </message>
    <message>
        <source>Imp gallon per second</source>
        <translation>британский галлон в секунду</translation>
    </message>
    <message>
        <source>Imp million gallon per day</source>
        <translation>миллион британских галлонов в сутки</translation>
    </message>
    <message>
        <source>liter per day</source>
        <translatorcomment>CLDR: литр в день</translatorcomment>
        <translation>литр в день</translation>
    </message>
    <message>
        <source>million liter per day</source>
        <translation>миллион литров в сутки</translation>
    </message>
    <message>
        <source>US gallon per day</source>
        <translation>американский галлон в сутки</translation>
    </message>
    <message>
        <source>US million gallon per day</source>
        <translation>миллион американских галлонов в сутки</translation>
    </message>
    <message>
        <source>cubic foot per day</source>
        <translatorcomment>CLDR: кубический фут в день</translatorcomment>
        <translation>кубический фут в день</translation>
    </message>
    <message>
        <source>cubic meter per day</source>
        <translatorcomment>CLDR: кубический метр в день</translatorcomment>
        <translation>кубический метр в день</translation>
    </message>
    <message>
        <source>cubic yard per minute</source>
        <translatorcomment>CLDR: кубический ярд в минуту</translatorcomment>
        <translation>кубический ярд в минуту</translation>
    </message>
    <message>
        <source>acre foot per day</source>
        <translatorcomment>CLDR: акрофут в день</translatorcomment>
        <translation>акрофут в день</translation>
    </message>
    <message>
        <source>acre foot per hour</source>
        <translatorcomment>CLDR: акрофут в час</translatorcomment>
        <translation>акрофут в час</translation>
    </message>
    <message>
        <source>acre foot per minute</source>
        <translatorcomment>CLDR: акрофут в минуту</translatorcomment>
        <translation>акрофут в минуту</translation>
    </message>
    <message>
        <source>acre inch per hour</source>
        <translation>акр-дюйм в час</translation>
    </message>
    <message>
        <source>acre inch per minute</source>
        <translation>акр-дюйм в минуту</translation>
    </message>
    <message>
        <source>cubic survey foot per second</source>
        <translation>кубический геодезический фут в секунду</translation>
    </message>
    <message>
        <source>kilogram per second</source>
        <translatorcomment>CLDR: килограмм в секунду</translatorcomment>
        <translation>килограмм в секунду</translation>
    </message>
    <message>
        <source>kilogram per minute</source>
        <translatorcomment>CLDR: килограмм в минуту</translatorcomment>
        <translation>килограмм в минуту</translation>
    </message>
    <message>
        <source>kilogram per hour</source>
        <translatorcomment>CLDR: килограмм в час</translatorcomment>
        <translation>килограмм в час</translation>
    </message>
    <message>
        <source>gram per second</source>
        <translatorcomment>CLDR: грамм в секунду</translatorcomment>
        <translation>грамм в секунду</translation>
    </message>
    <message>
        <source>gram per minute</source>
        <translatorcomment>CLDR: грамм в минуту</translatorcomment>
        <translation>грамм в минуту</translation>
    </message>
    <message>
        <source>gram per hour</source>
        <translatorcomment>CLDR: грамм в час</translatorcomment>
        <translation>грамм в час</translation>
    </message>
    <message>
        <source>pound per second</source>
        <translatorcomment>CLDR: фунт в секунду</translatorcomment>
        <translation>фунт в секунду</translation>
    </message>
    <message>
        <source>pound per minute</source>
        <translatorcomment>CLDR: фунт в минуту</translatorcomment>
        <translation>фунт в минуту</translation>
    </message>
    <message>
        <source>pound per hour</source>
        <translatorcomment>CLDR: фунт в час</translatorcomment>
        <translation>фунт в час</translation>
    </message>
    <message>
        <source>pint per stroke</source>
        <translation>пинта за ход</translation>
    </message>
    <message>
        <source>quart per stroke</source>
        <translation>кварта за ход</translation>
    </message>
    <message>
        <source>newton</source>
        <translatorcomment>CLDR: ньютон</translatorcomment>
        <translation>ньютон</translation>
    </message>
    <message>
        <source>yottanewton</source>
        <translatorcomment>CLDR: иоттаньютон</translatorcomment>
        <translation>иоттаньютон</translation>
    </message>
    <message>
        <source>zettanewton</source>
        <translatorcomment>CLDR: зеттаньютон</translatorcomment>
        <translation>зеттаньютон</translation>
    </message>
    <message>
        <source>exanewton</source>
        <translatorcomment>CLDR: эксаньютон</translatorcomment>
        <translation>эксаньютон</translation>
    </message>
    <message>
        <source>petanewton</source>
        <translatorcomment>CLDR: петаньютон</translatorcomment>
        <translation>петаньютон</translation>
    </message>
    <message>
        <source>teranewton</source>
        <translatorcomment>CLDR: тераньютон</translatorcomment>
        <translation>тераньютон</translation>
    </message>
    <message>
        <source>giganewton</source>
        <translatorcomment>CLDR: гиганьютон</translatorcomment>
        <translation>гиганьютон</translation>
    </message>
    <message>
        <source>meganewton</source>
        <translatorcomment>CLDR: меганьютон</translatorcomment>
        <translation>меганьютон</translation>
    </message>
    <message>
        <source>kilonewton</source>
        <translatorcomment>CLDR: килоньютон</translatorcomment>
        <translation>килоньютон</translation>
    </message>
    <message>
        <source>hectonewton</source>
        <translatorcomment>CLDR: гектоньютон</translatorcomment>
        <translation>гектоньютон</translation>
    </message>
    <message>
        <source>decanewton</source>
        <translatorcomment>CLDR: деканьютон</translatorcomment>
        <translation>деканьютон</translation>
    </message>
    <message>
        <source>decinewton</source>
        <translatorcomment>CLDR: дециньютон</translatorcomment>
        <translation>дециньютон</translation>
    </message>
    <message>
        <source>centinewton</source>
        <translatorcomment>CLDR: сантиньютон</translatorcomment>
        <translation>сантиньютон</translation>
    </message>
    <message>
        <source>millinewton</source>
        <translatorcomment>CLDR: миллиньютон</translatorcomment>
        <translation>миллиньютон</translation>
    </message>
    <message>
        <source>micronewton</source>
        <translatorcomment>CLDR: микроньютон</translatorcomment>
        <translation>микроньютон</translation>
    </message>
    <message>
        <source>nanonewton</source>
        <translatorcomment>CLDR: наноньютон</translatorcomment>
        <translation>наноньютон</translation>
    </message>
    <message>
        <source>piconewton</source>
        <translatorcomment>CLDR: пиконьютон</translatorcomment>
        <translation>пиконьютон</translation>
    </message>
    <message>
        <source>femtonewton</source>
        <translatorcomment>CLDR: фемтоньютон</translatorcomment>
        <translation>фемтоньютон</translation>
    </message>
    <message>
        <source>attonewton</source>
        <translatorcomment>CLDR: аттоньютон</translatorcomment>
        <translation>аттоньютон</translation>
    </message>
    <message>
        <source>zeptonewton</source>
        <translatorcomment>CLDR: зептоньютон</translatorcomment>
        <translation>зептоньютон</translation>
    </message>
    <message>
        <source>yoctonewton</source>
        <translatorcomment>CLDR: иоктоньютон</translatorcomment>
        <translation>иоктоньютон</translation>
    </message>
    <message>
        <source>kilopound</source>
        <translation>килофунт</translation>
    </message>
    <message>
        <source>kilogram-force</source>
        <translation>килограмм-сила</translation>
    </message>
    <message>
        <source>pound force</source>
        <translatorcomment>CLDR: фунт-сила</translatorcomment>
        <translation>фунт-сила</translation>
    </message>
    <message>
        <source>kip</source>
        <translation>кип</translation>
    </message>
    <message>
        <source>ton force</source>
        <translation>тонна-сила</translation>
    </message>
    <message>
        <source>dyne</source>
        <translation>дина</translation>
    </message>
    <message>
        <source>lbforce</source>
        <translation>lbf (фунт-сила)</translation>
    </message>
    <message>
        <source>ounce force</source>
        <translation>унция-сила</translation>
    </message>
    <message>
        <source>newton per meter</source>
        <translatorcomment>CLDR: ньютон на метр</translatorcomment>
        <translation>ньютон на метр</translation>
    </message>
    <message>
        <source>kilopound per foot</source>
        <translation>килофунт на фут</translation>
    </message>
    <message>
        <source>kilogram force per meter</source>
        <translation>килограмм-сила на метр</translation>
    </message>
    <message>
        <source>ton force per meter</source>
        <translation>тонна-сила на метр</translation>
    </message>
    <message>
        <source>pound-force per foot</source>
        <translation>фунт-сила на фут</translation>
    </message>
    <message>
        <source>decanewton per meter</source>
        <translatorcomment>CLDR: деканьютон на метр</translatorcomment>
        <translation>деканьютон на метр</translation>
    </message>
    <message>
        <source>kilonewton per meter</source>
        <translatorcomment>CLDR: килоньютон на метр</translatorcomment>
        <translation>килоньютон на метр</translation>
    </message>
    <message>
        <source>meganewton per meter</source>
        <translatorcomment>CLDR: меганьютон на метр</translatorcomment>
        <translation>меганьютон на метр</translation>
    </message>
    <message>
        <source>kip per foot</source>
        <translation>кип на фут</translation>
    </message>
    <message>
        <source>kip per inch</source>
        <translation>кип на дюйм</translation>
    </message>
    <message>
        <source>hertz</source>
        <translatorcomment>CLDR: герц</translatorcomment>
        <translation>герц</translation>
    </message>
    <message>
        <source>kilohertz</source>
        <translatorcomment>CLDR: килогерц</translatorcomment>
        <translation>килогерц</translation>
    </message>
    <message>
        <source>megahertz</source>
        <translatorcomment>CLDR: мегагерц</translatorcomment>
        <translation>мегагерц</translation>
    </message>
    <message>
        <source>gigahertz</source>
        <translatorcomment>CLDR: гигагерц</translatorcomment>
        <translation>гигагерц</translation>
    </message>
    <message>
        <source>terahertz</source>
        <translatorcomment>CLDR: терагерц</translatorcomment>
        <translation>терагерц</translation>
    </message>
    <message>
        <source>cycle per second</source>
        <translation>цикл в секунду</translation>
    </message>
    <message>
        <source>revolution per minute</source>
        <translatorcomment>CLDR: оборот в минуту</translatorcomment>
        <translation>оборот в минуту</translation>
    </message>
    <message>
        <source>flash per second</source>
        <translation>вспышка в секунду</translation>
    </message>
    <message>
        <source>flash per minute</source>
        <translation>вспышка в минуту</translation>
    </message>
    <message>
        <source>henry</source>
        <translation>генри</translation>
    </message>
    <message>
        <source>nanohenry</source>
        <translation>наногенри</translation>
    </message>
    <message>
        <source>microhenry</source>
        <translation>микрогенри</translation>
    </message>
    <message>
        <source>millihenry</source>
        <translation>миллигенри</translation>
    </message>
    <message>
        <source>gauss</source>
        <translation>гаусс</translation>
    </message>
    <message>
        <source>milligauss</source>
        <translation>миллигаусс</translation>
    </message>
    <message>
        <source>tesla</source>
        <translation>тесла</translation>
    </message>
    <message>
        <source>gamma</source>
        <translation>гамма</translation>
    </message>
    <message>
        <source>weber</source>
        <translation>вебер</translation>
    </message>
    <message>
        <source>maxwell</source>
        <translation>максвелл</translation>
    </message>
    <message>
        <source>watt</source>
        <translatorcomment>CLDR: ватт</translatorcomment>
        <translation>ватт</translation>
    </message>
    <message>
        <source>horsepower (metric)</source>
        <translation>лошадиная сила (метрическая)</translation>
    </message>
    <message>
        <source>horsepower (European electrical)</source>
        <translation>лошадиная сила (европейская электрическая)</translation>
    </message>
    <message>
        <source>horsepower (Imperial mechanical)</source>
        <translation>лошадиная сила (британская механическая)</translation>
    </message>
    <message>
        <source>horsepower (Imperial electrical)</source>
        <translation>лошадиная сила (британская электрическая)</translation>
    </message>
    <message>
        <source>kilocalorie per hour</source>
        <translatorcomment>CLDR: килокалория в час</translatorcomment>
        <translation>килокалория в час</translation>
    </message>
    <message>
        <source>kilowatt</source>
        <translatorcomment>CLDR: киловатт</translatorcomment>
        <translation>киловатт</translation>
    </message>
    <message>
        <source>megawatt</source>
        <translatorcomment>CLDR: мегаватт</translatorcomment>
        <translation>мегаватт</translation>
    </message>
    <message>
        <source>microwatt</source>
        <translatorcomment>CLDR: микроватт</translatorcomment>
        <translation>микроватт</translation>
    </message>
    <message>
        <source>volt ampere</source>
        <translation>вольт-ампер</translation>
    </message>
    <message>
        <source>millivolt ampere</source>
        <translation>милливольт-ампер</translation>
    </message>
    <message>
        <source>kilovolt ampere</source>
        <translation>киловольт-ампер</translation>
    </message>
    <message>
        <source>megavolt ampere</source>
        <translation>мегавольт-ампер</translation>
    </message>
    <message>
        <source>milliwatt</source>
        <translatorcomment>CLDR: милливатт</translatorcomment>
        <translation>милливатт</translation>
    </message>
    <message>
        <source>kilogram force meter per second</source>
        <translation>килограмм-сила-метр в секунду</translation>
    </message>
    <message>
        <source>foot pound-force per second</source>
        <translation>фут-фунт-сила в секунду</translation>
    </message>
    <message>
        <source>calorie per second</source>
        <translatorcomment>CLDR: калория в секунду</translatorcomment>
        <translation>калория в секунду</translation>
    </message>
    <message>
        <source>kilocalorie per second</source>
        <translatorcomment>CLDR: килокалория в секунду</translatorcomment>
        <translation>килокалория в секунду</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per second</source>
        <translation>британская тепловая единица (международная) в секунду</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per hour</source>
        <translation>британская тепловая единица (международная) в час</translation>
    </message>
    <message>
        <source>million British thermal unit (International Table) per hour</source>
        <translation>миллион британских тепловых единиц (международных) в час</translation>
    </message>
    <message>
        <source>thousand British thermal unit (International Table) per hour</source>
        <translation>тысяча британских тепловых единиц (международных) в час</translation>
    </message>
    <message>
        <source>ton of refrigeration</source>
        <translation>тонна охлаждения</translation>
    </message>
    <message>
        <source>watt per cubic meter</source>
        <translatorcomment>CLDR: ватт на кубический метр</translatorcomment>
        <translation>ватт на кубический метр</translation>
    </message>
    <message>
        <source>watt per cubic foot</source>
        <translatorcomment>CLDR: ватт/кубический фут</translatorcomment>
        <translation>ватт/кубический фут</translation>
    </message>
    <message>
        <source>British thermal unit per hour cubic foot</source>
        <translation>британская тепловая единица в час на кубический фут</translation>
    </message>
    <message>
        <source>watt per kilogram</source>
        <translatorcomment>CLDR: ватт на килограмм</translatorcomment>
        <translation>ватт на килограмм</translation>
    </message>
    <message>
        <source>watt per square meter</source>
        <translatorcomment>CLDR: ватт на квадратный метр</translatorcomment>
        <translation>ватт на квадратный метр</translation>
    </message>
    <message>
        <source>kilowatt per square meter</source>
        <translatorcomment>CLDR: киловатт на квадратный метр</translatorcomment>
        <translation>киловатт на квадратный метр</translation>
    </message>
    <message>
        <source>kilowatt per square foot</source>
        <translatorcomment>CLDR: киловатт/квадратный фут</translatorcomment>
        <translation>киловатт/квадратный фут</translation>
    </message>
    <message>
        <source>watt per square foot</source>
        <translatorcomment>CLDR: ватт/квадратный фут</translatorcomment>
        <translation>ватт/квадратный фут</translation>
    </message>
    <message>
        <source>British thermal unit per hour square foot</source>
        <translation>британская тепловая единица в час на квадратный фут</translation>
    </message>
    <message>
        <source>bar</source>
        <translatorcomment>CLDR: бар</translatorcomment>
        <translation>бар</translation>
    </message>
    <message>
        <source>bar absolute</source>
        <translation>бар абсолютный</translation>
    </message>
    <message>
        <source>bar gauge</source>
        <translation>бар избыточный</translation>
    </message>
    <message>
        <source>inch of mercury</source>
        <translatorcomment>CLDR: дюйм ртутного столба</translatorcomment>
        <translation>дюйм ртутного столба</translation>
    </message>
    <message>
        <source>inch of water</source>
        <translation>дюйм водяного столба</translation>
    </message>
    <message>
        <source>kilobar</source>
        <translatorcomment>CLDR: килобар</translatorcomment>
        <translation>килобар</translation>
    </message>
    <message>
        <source>kilogram per square centimeter</source>
        <translatorcomment>CLDR: килограмм на квадратный сантиметр</translatorcomment>
        <translation>килограмм на квадратный сантиметр</translation>
    </message>
    <message>
        <source>kilopascal</source>
        <translatorcomment>CLDR: килопаскаль</translatorcomment>
        <translation>килопаскаль</translation>
    </message>
    <message>
        <source>kilopound per square inch</source>
        <translatorcomment>CLDR: килофунт на квадратный дюйм</translatorcomment>
        <translation>килофунт на квадратный дюйм</translation>
    </message>
    <message>
        <source>mega pascal</source>
        <translatorcomment>CLDR: мегапаскаль</translatorcomment>
        <translation>мегапаскаль</translation>
    </message>
    <message>
        <source>millibar</source>
        <translatorcomment>CLDR: миллибар</translatorcomment>
        <translation>миллибар</translation>
    </message>
    <message>
        <source>millimeter of mercury</source>
        <translatorcomment>CLDR: миллиметр ртутного столба</translatorcomment>
        <translation>миллиметр ртутного столба</translation>
    </message>
    <message>
        <source>milli pascal</source>
        <translatorcomment>CLDR: миллипаскаль</translatorcomment>
        <translation>миллипаскаль</translation>
    </message>
    <message>
        <source>pascal</source>
        <translatorcomment>CLDR: паскаль</translatorcomment>
        <translation>паскаль</translation>
    </message>
    <message>
        <source>pound per square inch (atmosphere)</source>
        <translation>фунт на квадратный дюйм (абсолютный)</translation>
    </message>
    <message>
        <source>pound per square inch (gauge)</source>
        <translation>фунт на квадратный дюйм (избыточный)</translation>
    </message>
    <message>
        <source>pound per square foot</source>
        <translatorcomment>CLDR: фунт/квадратный фут</translatorcomment>
        <translation>фунт/квадратный фут</translation>
    </message>
    <message>
        <source>pound per square inch</source>
        <translatorcomment>CLDR: фунт на квадратный дюйм</translatorcomment>
        <translation>фунт на квадратный дюйм</translation>
    </message>
    <message>
        <source>atmosphere (standard)</source>
        <translation>атмосфера (физическая)</translation>
    </message>
    <message>
        <source>atmosphere (metric)</source>
        <translation>атмосфера (техническая)</translation>
    </message>
    <message>
        <source>torr</source>
        <translation>торр</translation>
    </message>
    <message>
        <source>newton per square millimeter</source>
        <translatorcomment>CLDR: ньютон/квадратный миллиметр</translatorcomment>
        <translation>ньютон/квадратный миллиметр</translation>
    </message>
    <message>
        <source>newton per square meter</source>
        <translatorcomment>CLDR: ньютон на квадратный метр</translatorcomment>
        <translation>ньютон на квадратный метр</translation>
    </message>
    <message>
        <source>decanewton per square millimeter</source>
        <translatorcomment>CLDR: деканьютон/квадратный миллиметр</translatorcomment>
        <translation>деканьютон/квадратный миллиметр</translation>
    </message>
    <message>
        <source>decanewton per square meter</source>
        <translatorcomment>CLDR: деканьютон на квадратный метр</translatorcomment>
        <translation>деканьютон на квадратный метр</translation>
    </message>
    <message>
        <source>kilonewton per square meter</source>
        <translatorcomment>CLDR: килоньютон на квадратный метр</translatorcomment>
        <translation>килоньютон на квадратный метр</translation>
    </message>
    <message>
        <source>meganewton per square meter</source>
        <translatorcomment>CLDR: меганьютон на квадратный метр</translatorcomment>
        <translation>меганьютон на квадратный метр</translation>
    </message>
    <message>
        <source>kilopound per square foot</source>
        <translatorcomment>CLDR: килофунт/квадратный фут</translatorcomment>
        <translation>килофунт/квадратный фут</translation>
    </message>
    <message>
        <source>kilogram force per square millimeter</source>
        <translation>килограмм-сила на квадратный миллиметр</translation>
    </message>
    <message>
        <source>kilogram force per square centimeter</source>
        <translation>килограмм-сила на квадратный сантиметр</translation>
    </message>
    <message>
        <source>kilogram force per square meter</source>
        <translation>килограмм-сила на квадратный метр</translation>
    </message>
    <message>
        <source>ton force per square centimeter</source>
        <translation>тонна-сила на квадратный сантиметр</translation>
    </message>
    <message>
        <source>ton force per square meter</source>
        <translation>тонна-сила на квадратный метр</translation>
    </message>
    <message>
        <source>ton force per square foot</source>
        <translation>тонна-сила на квадратный фут</translation>
    </message>
    <message>
        <source>pound force per square inch</source>
        <translation>фунт-сила на квадратный дюйм</translation>
    </message>
    <message>
        <source>foot of water</source>
        <translation>фут водяного столба</translation>
    </message>
    <message>
        <source>kip per square inch</source>
        <translation>кип на квадратный дюйм</translation>
    </message>
    <message>
        <source>kip per square foot</source>
        <translation>кип на квадратный фут</translation>
    </message>
    <message>
        <source>pound force per square foot</source>
        <translation>фунт-сила на квадратный фут</translation>
    </message>
    <message>
        <source>gigapascal</source>
        <translatorcomment>CLDR: гигапаскаль</translatorcomment>
        <translation>гигапаскаль</translation>
    </message>
    <message>
        <source>dyne per square centimeter</source>
        <translation>дина на квадратный сантиметр</translation>
    </message>
    <message>
        <source>newton per square micrometer</source>
        <translatorcomment>CLDR: ньютон/квадратный микрометр</translatorcomment>
        <translation>ньютон/квадратный микрометр</translation>
    </message>
    <message>
        <source>meter per newton</source>
        <translatorcomment>CLDR: метр/ньютон</translatorcomment>
        <translation>метр/ньютон</translation>
    </message>
    <message>
        <source>meter per kilonewton</source>
        <translatorcomment>CLDR: метр/килоньютон</translatorcomment>
        <translation>метр/килоньютон</translation>
    </message>
    <message>
        <source>foot per kip</source>
        <translation>фут на кип</translation>
    </message>
    <message>
        <source>square meter per newton</source>
        <translatorcomment>CLDR: квадратный метр/ньютон</translatorcomment>
        <translation>квадратный метр/ньютон</translation>
    </message>
    <message>
        <source>square meter per kilonewton</source>
        <translatorcomment>CLDR: квадратный метр/килоньютон</translatorcomment>
        <translation>квадратный метр/килоньютон</translation>
    </message>
    <message>
        <source>square foot per kip</source>
        <translation>квадратный фут на кип</translation>
    </message>
    <message>
        <source>cubic meter per newton</source>
        <translatorcomment>CLDR: кубический метр/ньютон</translatorcomment>
        <translation>кубический метр/ньютон</translation>
    </message>
    <message>
        <source>cubic meter per kilonewton</source>
        <translatorcomment>CLDR: кубический метр/килоньютон</translatorcomment>
        <translation>кубический метр/килоньютон</translation>
    </message>
    <message>
        <source>cubic foot per kip</source>
        <translation>кубический фут на кип</translation>
    </message>
    <message>
        <source>newton-meter per meter</source>
        <translatorcomment>CLDR: ньютон-метр на метр</translatorcomment>
        <translation>ньютон-метр на метр</translation>
    </message>
    <message>
        <source>decanewton-meter per meter</source>
        <translatorcomment>CLDR: деканьютон-метр на метр</translatorcomment>
        <translation>деканьютон-метр на метр</translation>
    </message>
    <message>
        <source>kilonewton-meter per meter</source>
        <translatorcomment>CLDR: килоньютон-метр на метр</translatorcomment>
        <translation>килоньютон-метр на метр</translation>
    </message>
    <message>
        <source>meganewton-meter per meter</source>
        <translatorcomment>CLDR: меганьютон-метр на метр</translatorcomment>
        <translation>меганьютон-метр на метр</translation>
    </message>
    <message>
        <source>kip-foot per foot</source>
        <translation>кип-фут на фут</translation>
    </message>
    <message>
        <source>kilogram force-meter per meter</source>
        <translation>килограмм-сила-метр на метр</translation>
    </message>
    <message>
        <source>ton force-meter per meter</source>
        <translation>тонна-сила-метр на метр</translation>
    </message>
    <message>
        <source>pound-force foot per foot</source>
        <translatorcomment>CLDR: фунт-фут на фут</translatorcomment>
        <translation>фунт-фут на фут</translation>
    </message>
    <message>
        <source>ohm</source>
        <translatorcomment>CLDR: ом</translatorcomment>
        <translation>ом</translation>
    </message>
    <message>
        <source>kilohm</source>
        <translatorcomment>CLDR: килоом</translatorcomment>
        <translation>килоом</translation>
    </message>
    <message>
        <source>gigaohm</source>
        <translatorcomment>CLDR: гигаом</translatorcomment>
        <translation>гигаом</translation>
    </message>
    <message>
        <source>megohm</source>
        <translatorcomment>CLDR: мегаом</translatorcomment>
        <translation>мегаом</translation>
    </message>
    <message>
        <source>microohm</source>
        <translatorcomment>CLDR: микроом</translatorcomment>
        <translation>микроом</translation>
    </message>
    <message>
        <source>milliohm</source>
        <translatorcomment>CLDR: миллиом</translatorcomment>
        <translation>миллиом</translation>
    </message>
    <message>
        <source>siemens</source>
        <translation>сименс</translation>
    </message>
    <message>
        <source>mho</source>
        <translation>мо</translation>
    </message>
    <message>
        <source>meter per second</source>
        <translatorcomment>CLDR: метр в секунду</translatorcomment>
        <translation>метр в секунду</translation>
    </message>
    <message>
        <source>millimeter per second</source>
        <translatorcomment>CLDR: миллиметр в секунду</translatorcomment>
        <translation>миллиметр в секунду</translation>
    </message>
    <message>
        <source>centimeter per second</source>
        <translatorcomment>CLDR: сантиметр в секунду</translatorcomment>
        <translation>сантиметр в секунду</translation>
    </message>
    <message>
        <source>meter per minute</source>
        <translatorcomment>CLDR: метр в минуту</translatorcomment>
        <translation>метр в минуту</translation>
    </message>
    <message>
        <source>inch per second</source>
        <translatorcomment>CLDR: дюйм в секунду</translatorcomment>
        <translation>дюйм в секунду</translation>
    </message>
    <message>
        <source>foot per second</source>
        <translatorcomment>CLDR: фут в секунду</translatorcomment>
        <translation>фут в секунду</translation>
    </message>
    <message>
        <source>inch per minute</source>
        <translatorcomment>CLDR: дюйм в минуту</translatorcomment>
        <translation>дюйм в минуту</translation>
    </message>
    <message>
        <source>foot per minute</source>
        <translatorcomment>CLDR: фут в минуту</translatorcomment>
        <translation>фут в минуту</translation>
    </message>
    <message>
        <source>kilometer per hour</source>
        <translatorcomment>CLDR: километр в час</translatorcomment>
        <translation>километр в час</translation>
    </message>
    <message>
        <source>mile per hour</source>
        <translatorcomment>CLDR: миля в час</translatorcomment>
        <translation>миля в час</translation>
    </message>
    <message>
        <source>centimeter per minute</source>
        <translatorcomment>CLDR: сантиметр в минуту</translatorcomment>
        <translation>сантиметр в минуту</translation>
    </message>
    <message>
        <source>foot per hour</source>
        <translatorcomment>CLDR: фут в час</translatorcomment>
        <translation>фут в час</translation>
    </message>
    <message>
        <source>inch per hour</source>
        <translatorcomment>CLDR: дюйм в час</translatorcomment>
        <translation>дюйм в час</translation>
    </message>
    <message>
        <source>kilometer per minute</source>
        <translatorcomment>CLDR: километр в минуту</translatorcomment>
        <translation>километр в минуту</translation>
    </message>
    <message>
        <source>kilometer per second</source>
        <translatorcomment>CLDR: километр в секунду</translatorcomment>
        <translation>километр в секунду</translation>
    </message>
    <message>
        <source>knot</source>
        <translatorcomment>CLDR: узел</translatorcomment>
        <translation>узел</translation>
    </message>
    <message>
        <source>knot (UK)</source>
        <translation>узел (Великобритания)</translation>
    </message>
    <message>
        <source>meter per hour</source>
        <translatorcomment>CLDR: метр в час</translatorcomment>
        <translation>метр в час</translation>
    </message>
    <message>
        <source>mile per minute</source>
        <translatorcomment>CLDR: миля в минуту</translatorcomment>
        <translation>миля в минуту</translation>
    </message>
    <message>
        <source>mile per second</source>
        <translatorcomment>CLDR: миля в секунду</translatorcomment>
        <translation>миля в секунду</translation>
    </message>
    <message>
        <source>survey mile per hour</source>
        <translation>геодезическая миля в час</translation>
    </message>
    <message>
        <source>survey foot per second</source>
        <translation>геодезический фут в секунду</translation>
    </message>
    <message>
        <source>byte</source>
        <translatorcomment>CLDR: байт</translatorcomment>
        <translation>байт</translation>
    </message>
    <message>
        <source>bit</source>
        <translatorcomment>CLDR: бит</translatorcomment>
        <translation>бит</translation>
    </message>
    <message>
        <source>kilobyte</source>
        <translatorcomment>CLDR: килобайт</translatorcomment>
        <translation>килобайт</translation>
    </message>
    <message>
        <source>megabyte</source>
        <translatorcomment>CLDR: мегабайт</translatorcomment>
        <translation>мегабайт</translation>
    </message>
    <message>
        <source>gigabyte</source>
        <translatorcomment>CLDR: гигабайт</translatorcomment>
        <translation>гигабайт</translation>
    </message>
    <message>
        <source>terabyte</source>
        <translatorcomment>CLDR: терабайт</translatorcomment>
        <translation>терабайт</translation>
    </message>
    <message>
        <source>kibibyte</source>
        <translatorcomment>CLDR: кибибайт</translatorcomment>
        <translation>кибибайт</translation>
    </message>
    <message>
        <source>mebibyte</source>
        <translatorcomment>CLDR: мебибайт</translatorcomment>
        <translation>мебибайт</translation>
    </message>
    <message>
        <source>gibibyte</source>
        <translatorcomment>CLDR: гибибайт</translatorcomment>
        <translation>гибибайт</translation>
    </message>
    <message>
        <source>tebibyte</source>
        <translatorcomment>CLDR: тебибайт</translatorcomment>
        <translation>тебибайт</translation>
    </message>
    <message>
        <source>kilobit</source>
        <translatorcomment>CLDR: килобит</translatorcomment>
        <translation>килобит</translation>
    </message>
    <message>
        <source>megabit</source>
        <translatorcomment>CLDR: мегабит</translatorcomment>
        <translation>мегабит</translation>
    </message>
    <message>
        <source>gigabit</source>
        <translatorcomment>CLDR: гигабит</translatorcomment>
        <translation>гигабит</translation>
    </message>
    <message>
        <source>petabyte</source>
        <translatorcomment>CLDR: петабайт</translatorcomment>
        <translation>петабайт</translation>
    </message>
    <message>
        <source>pebibyte</source>
        <translatorcomment>CLDR: пебибайт</translatorcomment>
        <translation>пебибайт</translation>
    </message>
    <message>
        <source>exabyte</source>
        <translatorcomment>CLDR: эксабайт</translatorcomment>
        <translation>эксабайт</translation>
    </message>
    <message>
        <source>exbibyte</source>
        <translatorcomment>CLDR: эксбибайт</translatorcomment>
        <translation>эксбибайт</translation>
    </message>
    <message>
        <source>zettabyte</source>
        <translatorcomment>CLDR: зеттабайт</translatorcomment>
        <translation>зеттабайт</translation>
    </message>
    <message>
        <source>zebibyte</source>
        <translatorcomment>CLDR: зебибайт</translatorcomment>
        <translation>зебибайт</translation>
    </message>
    <message>
        <source>yottabyte</source>
        <translatorcomment>CLDR: иоттабайт</translatorcomment>
        <translation>иоттабайт</translation>
    </message>
    <message>
        <source>yobibyte</source>
        <translatorcomment>CLDR: йобибайт</translatorcomment>
        <translation>йобибайт</translation>
    </message>
    <message>
        <source>kelvin</source>
        <translatorcomment>CLDR: кельвин</translatorcomment>
        <translation>кельвин</translation>
    </message>
    <message>
        <source>degree Celsius</source>
        <translatorcomment>CLDR: градус Цельсия</translatorcomment>
        <translation>градус Цельсия</translation>
    </message>
    <message>
        <source>degree Fahrenheit</source>
        <translatorcomment>CLDR: градус Фаренгейта</translatorcomment>
        <translation>градус Фаренгейта</translation>
    </message>
    <message>
        <source>degree Rankine</source>
        <translation>градус Ранкина</translation>
    </message>
    <message>
        <source>celsius per minute</source>
        <translatorcomment>CLDR: градус Цельсия в минуту</translatorcomment>
        <translation>градус Цельсия в минуту</translation>
    </message>
    <message>
        <source>fahrenheit per minute</source>
        <translatorcomment>CLDR: градус Фаренгейта в минуту</translatorcomment>
        <translation>градус Фаренгейта в минуту</translation>
    </message>
    <message>
        <source>second</source>
        <translatorcomment>CLDR: секунда</translatorcomment>
        <translation>секунда</translation>
    </message>
    <message>
        <source>yottasecond</source>
        <translatorcomment>CLDR: иоттасекунда</translatorcomment>
        <translation>иоттасекунда</translation>
    </message>
    <message>
        <source>zettasecond</source>
        <translatorcomment>CLDR: зеттасекунда</translatorcomment>
        <translation>зеттасекунда</translation>
    </message>
    <message>
        <source>exasecond</source>
        <translatorcomment>CLDR: эксасекунда</translatorcomment>
        <translation>эксасекунда</translation>
    </message>
    <message>
        <source>petasecond</source>
        <translatorcomment>CLDR: петасекунда</translatorcomment>
        <translation>петасекунда</translation>
    </message>
    <message>
        <source>terasecond</source>
        <translatorcomment>CLDR: терасекунда</translatorcomment>
        <translation>терасекунда</translation>
    </message>
    <message>
        <source>gigasecond</source>
        <translatorcomment>CLDR: гигасекунда</translatorcomment>
        <translation>гигасекунда</translation>
    </message>
    <message>
        <source>megasecond</source>
        <translatorcomment>CLDR: мегасекунда</translatorcomment>
        <translation>мегасекунда</translation>
    </message>
    <message>
        <source>kilosecond</source>
        <translatorcomment>CLDR: килосекунда</translatorcomment>
        <translation>килосекунда</translation>
    </message>
    <message>
        <source>hectosecond</source>
        <translatorcomment>CLDR: гектосекунда</translatorcomment>
        <translation>гектосекунда</translation>
    </message>
    <message>
        <source>decasecond</source>
        <translatorcomment>CLDR: декасекунда</translatorcomment>
        <translation>декасекунда</translation>
    </message>
    <message>
        <source>decisecond</source>
        <translatorcomment>CLDR: децисекунда</translatorcomment>
        <translation>децисекунда</translation>
    </message>
    <message>
        <source>centisecond</source>
        <translatorcomment>CLDR: сантисекунда</translatorcomment>
        <translation>сантисекунда</translation>
    </message>
    <message>
        <source>millisecond</source>
        <translatorcomment>CLDR: миллисекунда</translatorcomment>
        <translation>миллисекунда</translation>
    </message>
    <message>
        <source>microsecond</source>
        <translatorcomment>CLDR: микросекунда</translatorcomment>
        <translation>микросекунда</translation>
    </message>
    <message>
        <source>nanosecond</source>
        <translatorcomment>CLDR: наносекунда</translatorcomment>
        <translation>наносекунда</translation>
    </message>
    <message>
        <source>picosecond</source>
        <translatorcomment>CLDR: пикосекунда</translatorcomment>
        <translation>пикосекунда</translation>
    </message>
    <message>
        <source>femtosecond</source>
        <translatorcomment>CLDR: фемтосекунда</translatorcomment>
        <translation>фемтосекунда</translation>
    </message>
    <message>
        <source>attosecond</source>
        <translatorcomment>CLDR: аттосекунда</translatorcomment>
        <translation>аттосекунда</translation>
    </message>
    <message>
        <source>zeptosecond</source>
        <translatorcomment>CLDR: зептосекунда</translatorcomment>
        <translation>зептосекунда</translation>
    </message>
    <message>
        <source>yoctosecond</source>
        <translatorcomment>CLDR: иоктосекунда</translatorcomment>
        <translation>иоктосекунда</translation>
    </message>
    <message>
        <source>minute</source>
        <translatorcomment>CLDR: минута</translatorcomment>
        <translation>минута</translation>
    </message>
    <message>
        <source>hour</source>
        <translatorcomment>CLDR: час</translatorcomment>
        <translation>час</translation>
    </message>
    <message>
        <source>day</source>
        <translatorcomment>CLDR: день</translatorcomment>
        <translation>день</translation>
    </message>
    <message>
        <source>week</source>
        <translatorcomment>CLDR: неделя</translatorcomment>
        <translation>неделя</translation>
    </message>
    <message>
        <source>fortnight</source>
        <translation>две недели</translation>
    </message>
    <message>
        <source>month</source>
        <translatorcomment>CLDR: месяц</translatorcomment>
        <translation>месяц</translation>
    </message>
    <message>
        <source>month (hollow)</source>
        <translation>месяц (неполный, 29 дней)</translation>
    </message>
    <message>
        <source>month (full)</source>
        <translation>месяц (полный, 30 дней)</translation>
    </message>
    <message>
        <source>year</source>
        <translatorcomment>CLDR: год</translatorcomment>
        <translation>год</translation>
    </message>
    <message>
        <source>year (Gregorian)</source>
        <translation>год (григорианский)</translation>
    </message>
    <message>
        <source>year (Julian)</source>
        <translation>год (юлианский)</translation>
    </message>
    <message>
        <source>sidereal year</source>
        <translation>звёздный год</translation>
    </message>
    <message>
        <source>tropical year</source>
        <translation>тропический год</translation>
    </message>
    <message>
        <source>annum</source>
        <translation>аннум</translation>
    </message>
    <message>
        <source>decade</source>
        <translatorcomment>CLDR: десятилетие</translatorcomment>
        <translation>десятилетие</translation>
    </message>
    <message>
        <source>century</source>
        <translatorcomment>CLDR: век</translatorcomment>
        <translation>век</translation>
    </message>
    <message>
        <source>century (Julian)</source>
        <translation>век (юлианский)</translation>
    </message>
    <message>
        <source>millenium</source>
        <translation>тысячелетие</translation>
    </message>
    <message>
        <source>millenium (Gregorian)</source>
        <translation>тысячелетие (григорианское)</translation>
    </message>
    <message>
        <source>millenium (Julian)</source>
        <translation>тысячелетие (юлианское)</translation>
    </message>
    <message>
        <source>newton meter (torque)</source>
        <translation>ньютон-метр (момент)</translation>
    </message>
    <message>
        <source>newton centimeter (torque)</source>
        <translation>ньютон-сантиметр (момент)</translation>
    </message>
    <message>
        <source>newton decameter (torque)</source>
        <translation>ньютон-декаметр (момент)</translation>
    </message>
    <message>
        <source>foot pound (torque)</source>
        <translation>фут-фунт (момент)</translation>
    </message>
    <message>
        <source>inch pound (torque)</source>
        <translation>дюйм-фунт (момент)</translation>
    </message>
    <message>
        <source>meter kilogram (torque)</source>
        <translation>метр-килограмм (момент)</translation>
    </message>
    <message>
        <source>centimeter kilogram (torque)</source>
        <translation>сантиметр-килограмм (момент)</translation>
    </message>
    <message>
        <source>inch ounce (torque)</source>
        <translation>дюйм-унция (момент)</translation>
    </message>
    <message>
        <source>gram centimeter (torque)</source>
        <translation>грамм-сантиметр (момент)</translation>
    </message>
    <message>
        <source>decanewton meter (torque)</source>
        <translation>деканьютон-метр (момент)</translation>
    </message>
    <message>
        <source>kilonewton meter (torque)</source>
        <translation>килоньютон-метр (момент)</translation>
    </message>
    <message>
        <source>meganewton meter (torque)</source>
        <translation>меганьютон-метр (момент)</translation>
    </message>
    <message>
        <source>kip foot (torque)</source>
        <translation>кип-фут (момент)</translation>
    </message>
    <message>
        <source>kilogram force meter (torque)</source>
        <translation>килограмм-сила-метр (момент)</translation>
    </message>
    <message>
        <source>ton force meter (torque)</source>
        <translation>тонна-сила-метр (момент)</translation>
    </message>
    <message>
        <source>pound force foot (torque)</source>
        <translation>фунт-сила-фут (момент)</translation>
    </message>
    <message>
        <source>poise</source>
        <translation>пуаз</translation>
    </message>
    <message>
        <source>centipoise</source>
        <translation>сантипуаз</translation>
    </message>
    <message>
        <source>pascal second</source>
        <translation>паскаль-секунда</translation>
    </message>
    <message>
        <source>pound mass per foot second</source>
        <translation>фунт массы на фут-секунду</translation>
    </message>
    <message>
        <source>pound mass per foot hour</source>
        <translation>фунт массы на фут-час</translation>
    </message>
    <message>
        <source>stoke</source>
        <translation>стокс</translation>
    </message>
    <message>
        <source>centistoke</source>
        <translation>сантистокс</translation>
    </message>
    <message>
        <source>meter per second squared</source>
        <translatorcomment>CLDR: метр на секунду в квадрате</translatorcomment>
        <translation>метр на секунду в квадрате</translation>
    </message>
    <message>
        <source>foot per second squared</source>
        <translation>фут на секунду в квадрате</translation>
    </message>
    <message>
        <source>survey foot per second squared</source>
        <translation>геодезический фут на секунду в квадрате</translation>
    </message>
    <message>
        <source>volt</source>
        <translatorcomment>CLDR: вольт</translatorcomment>
        <translation>вольт</translation>
    </message>
    <message>
        <source>kilovolt</source>
        <translatorcomment>CLDR: киловольт</translatorcomment>
        <translation>киловольт</translation>
    </message>
    <message>
        <source>microvolt</source>
        <translatorcomment>CLDR: микровольт</translatorcomment>
        <translation>микровольт</translation>
    </message>
    <message>
        <source>millivolt</source>
        <translatorcomment>CLDR: милливольт</translatorcomment>
        <translation>милливольт</translation>
    </message>
    <message>
        <source>volt (electrical potential)</source>
        <translation>вольт (электрический потенциал)</translation>
    </message>
    <message>
        <source>abvolt</source>
        <translation>абвольт</translation>
    </message>
    <message>
        <source>statvolt</source>
        <translation>статвольт</translation>
    </message>
    <message>
        <source>candela</source>
        <translatorcomment>CLDR: кандела</translatorcomment>
        <translation>кандела</translation>
    </message>
    <message>
        <source>lumen per steradian</source>
        <translation>люмен на стерадиан</translation>
    </message>
    <message>
        <source>candlepower</source>
        <translation>свеча (candlepower)</translation>
    </message>
    <message>
        <source>Lux (Illuminance)</source>
        <translation>люкс (освещённость)</translation>
    </message>
    <message>
        <source>footcandle</source>
        <translation>фут-свеча</translation>
    </message>
    <message>
        <source>lumen second</source>
        <translation>люмен-секунда</translation>
    </message>
    <message>
        <source>talbots</source>
        <translation>тальбот</translation>
    </message>
    <message>
        <source>luminous power</source>
        <translation>световая мощность</translation>
    </message>
    <message>
        <source>lumen</source>
        <translatorcomment>CLDR: люмен</translatorcomment>
        <translation>люмен</translation>
    </message>
    <message>
        <source>candela per square meter</source>
        <translatorcomment>CLDR: кандела на квадратный метр</translatorcomment>
        <translation>кандела на квадратный метр</translation>
    </message>
    <message>
        <source>foot lambert</source>
        <translation>фут-ламберт</translation>
    </message>
    <message>
        <source>candela per square foot</source>
        <translatorcomment>CLDR: кандела/квадратный фут</translatorcomment>
        <translation>кандела/квадратный фут</translation>
    </message>
    <message>
        <source>lux (emittance)</source>
        <translation>люкс (светимость)</translation>
    </message>
    <message>
        <source>lumen per watt</source>
        <translatorcomment>CLDR: люмен/ватт</translatorcomment>
        <translation>люмен/ватт</translation>
    </message>
    <message>
        <source>pascal per meter</source>
        <translatorcomment>CLDR: паскаль на метр</translatorcomment>
        <translation>паскаль на метр</translation>
    </message>
    <message>
        <source>inch of water per 100foot</source>
        <translation>дюйм водяного столба на 100 футов</translation>
    </message>
    <message>
        <source>foot of water per 100foot</source>
        <translation>фут водяного столба на 100 футов</translation>
    </message>
    <message>
        <source>inch of mercury per 100foot</source>
        <translation>дюйм ртутного столба на 100 футов</translation>
    </message>
    <message>
        <source>millimeter of mercury per 100foot</source>
        <translation>миллиметр ртутного столба на 100 футов</translation>
    </message>
    <message>
        <source>newton meter per degree</source>
        <translatorcomment>CLDR: ньютон-метр/градус</translatorcomment>
        <translation>ньютон-метр/градус</translation>
    </message>
    <message>
        <source>kip foot per degree</source>
        <translation>кип-фут на градус</translation>
    </message>
    <message>
        <source>kilonewton meter per degree</source>
        <translatorcomment>CLDR: килоньютон-метр/градус</translatorcomment>
        <translation>килоньютон-метр/градус</translation>
    </message>
    <message>
        <source>newton meter per degree per meter</source>
        <translation>ньютон-метр на градус на метр</translation>
    </message>
    <message>
        <source>kip foot per degree per foot</source>
        <translation>кип-фут на градус на фут</translation>
    </message>
    <message>
        <source>kilonewton meter per degree per meter</source>
        <translation>килоньютон-метр на градус на метр</translation>
    </message>
    <message>
        <source>watt per square meter kelvin</source>
        <translation>ватт на квадратный метр-кельвин</translation>
    </message>
    <message>
        <source>british thermal unit per hour square foot fahrenheit</source>
        <translation>британская тепловая единица в час на квадратный фут и градус Фаренгейта</translation>
    </message>
    <message>
        <source>cubic meter per second square meter</source>
        <translation>кубический метр в секунду на квадратный метр</translation>
    </message>
    <message>
        <source>cubic foot per minute square foot</source>
        <translation>кубический фут в минуту на квадратный фут</translation>
    </message>
    <message>
        <source>liter per second square meter</source>
        <translation>литр в секунду на квадратный метр</translation>
    </message>
    <message>
        <source>cubic meter per second cubic meter</source>
        <translation>кубический метр в секунду на кубический метр</translation>
    </message>
    <message>
        <source>cubic foot per minute cubic foot</source>
        <translation>кубический фут в минуту на кубический фут</translation>
    </message>
    <message>
        <source>liter per second cubic meter</source>
        <translation>литр в секунду на кубический метр</translation>
    </message>
    <message>
        <source>cubic meter per second watt</source>
        <translation>кубический метр в секунду на ватт</translation>
    </message>
    <message>
        <source>cubic foot per minute ton of refrigeration</source>
        <translation>кубический фут в минуту на тонну охлаждения</translation>
    </message>
    <message>
        <source>liter per second kilowatt</source>
        <translation>литр в секунду на киловатт</translation>
    </message>
    <message>
        <source>square meter per watt</source>
        <translatorcomment>CLDR: квадратный метр/ватт</translatorcomment>
        <translation>квадратный метр/ватт</translation>
    </message>
    <message>
        <source>square foot per ton of refrigeration</source>
        <translation>квадратный фут на тонну охлаждения</translation>
    </message>
    <message>
        <source>square meter per kilowatt</source>
        <translatorcomment>CLDR: квадратный метр/киловатт</translatorcomment>
        <translation>квадратный метр/киловатт</translation>
    </message>
    <message>
        <source>square foot per thousand british thermal unit per hour</source>
        <translation>квадратный фут на тысячу британских тепловых единиц в час</translation>
    </message>
    <message>
        <source>square second per meter kilogram</source>
        <translation>секунда в квадрате на метр-килограмм</translation>
    </message>
    <message>
        <source>inverse kilonewton</source>
        <translation>обратный килоньютон</translation>
    </message>
    <message>
        <source>inverse kip</source>
        <translation>обратный кип</translation>
    </message>
    <message>
        <source>inverse fahrenheit</source>
        <translation>обратный градус Фаренгейта</translation>
    </message>
    <message>
        <source>inverse celsius</source>
        <translation>обратный градус Цельсия</translation>
    </message>
    <message>
        <source>micrometer per meter celsius</source>
        <translation>микрометр на метр и градус Цельсия</translation>
    </message>
    <message>
        <source>microinch per inch fahrenheit</source>
        <translation>микродюйм на дюйм и градус Фаренгейта</translation>
    </message>
    <message>
        <source>oersted</source>
        <translation>эрстед</translation>
    </message>
    <message>
        <source>Ampere per meter</source>
        <translatorcomment>CLDR: ампер на метр</translatorcomment>
        <translation>ампер на метр</translation>
    </message>
    <message>
        <source>watt per meter kelvin</source>
        <translation>ватт на метр-кельвин</translation>
    </message>
    <message>
        <source>watt per meter celsius</source>
        <translation>ватт на метр и градус Цельсия</translation>
    </message>
    <message>
        <source>newton per second celsius</source>
        <translation>ньютон на секунду и градус Цельсия</translation>
    </message>
    <message>
        <source>dyne per second celsius</source>
        <translation>дина на секунду и градус Цельсия</translation>
    </message>
    <message>
        <source>BTU inch per square foot hour fahrenheit</source>
        <translation>БТЕ-дюйм на квадратный фут, час и градус Фаренгейта</translation>
    </message>
    <message>
        <source>BTU per inch second fahrenheit</source>
        <translation>БТЕ на дюйм, секунду и градус Фаренгейта</translation>
    </message>
    <message>
        <source>BTU per foot second fahrenheit</source>
        <translation>БТЕ на фут, секунду и градус Фаренгейта</translation>
    </message>
    <message>
        <source>BTU per foot hour fahrenheit</source>
        <translation>БТЕ на фут, час и градус Фаренгейта</translation>
    </message>
    <message>
        <source>joule per gram celsius</source>
        <translation>джоуль на грамм-градус Цельсия</translation>
    </message>
    <message>
        <source>joule per kilogram celsius</source>
        <translation>джоуль на килограмм-градус Цельсия</translation>
    </message>
    <message>
        <source>square millimeter per square second celsius</source>
        <translation>квадратный миллиметр на секунду в квадрате и градус Цельсия</translation>
    </message>
    <message>
        <source>erg per gram celsius</source>
        <translation>эрг на грамм-градус Цельсия</translation>
    </message>
    <message>
        <source>square micrometer per square second celsius</source>
        <translation>квадратный микрометр на секунду в квадрате и градус Цельсия</translation>
    </message>
    <message>
        <source>BTU per pound fahrenheit</source>
        <translation>БТЕ на фунт-градус Фаренгейта</translation>
    </message>
    <message>
        <source>nanogram per pascal second square meter</source>
        <translation>нанограмм на паскаль-секунду-квадратный метр</translation>
    </message>
    <message>
        <source>grain per square foot hour inches mercury</source>
        <translation>гран на квадратный фут, час и дюйм ртутного столба</translation>
    </message>
    <message>
        <source>ohm meter</source>
        <translation>ом-метр</translation>
    </message>
    <message>
        <source>joule per gram</source>
        <translatorcomment>CLDR: джоуль на грамм</translatorcomment>
        <translation>джоуль на грамм</translation>
    </message>
    <message>
        <source>joule per kilogram</source>
        <translatorcomment>CLDR: джоуль на килограмм</translatorcomment>
        <translation>джоуль на килограмм</translation>
    </message>
    <message>
        <source>BTU per pound</source>
        <translation>БТЕ на фунт</translation>
    </message>
</context>
</TS>
