package orvane.str.diskarray;

public class StatisticalFibre {
    public StatisticalFibre_Info[] Install;
    public StatisticalFibre_Info[] Pson;
}
