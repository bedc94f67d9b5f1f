package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class StatisticalFibre {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public StatisticalFibre_Info[] Install;
    public StatisticalFibre_Info[] Pson;
}
