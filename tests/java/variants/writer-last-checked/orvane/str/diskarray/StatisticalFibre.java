package orvane.str.diskarray;

/** Lacks Pson, the last field whose failure drops the object. */
public class StatisticalFibre {
    public StatisticalFibre_Info[] Install;
    public StatisticalFibre_Info[] Pson_absent;
}
