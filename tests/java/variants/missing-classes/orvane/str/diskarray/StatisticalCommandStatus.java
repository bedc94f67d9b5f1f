package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class StatisticalCommandStatus {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public StatisticalCommandStatus_Info[] lu;
}
